#pragma once

namespace kelvo {

// Enables "SeShutdownPrivilege" in this process's token, so that it may shut down the computer,
// until the process exits. Returns false when that fails or the token does not hold the privilege.
bool EnableShutdownPrivilege();

}  // namespace kelvo
