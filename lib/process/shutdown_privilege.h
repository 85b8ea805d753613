#pragma once

namespace kelvo {

// Enables "SeShutdownPrivilege" in this process's token, so that the process may shut down the
// computer. The privilege stays enabled until the process exits. Returns false when the token does
// not hold the privilege or when enabling it fails.
bool EnableShutdownPrivilege();

}  // namespace kelvo
