#pragma once

namespace kelvo {

// Enables "SeShutdownPrivilege" in this process's token, so that the process may shut down the
// computer. The privilege stays enabled until the process exits. Returns false when enabling it
// fails or the token does not hold it.
bool EnableShutdownPrivilege();

}  // namespace kelvo
