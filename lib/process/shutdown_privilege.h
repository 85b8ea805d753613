#pragma once

namespace kelvo {

// Enables "SeShutdownPrivilege" in this process's token until the process exits, so that it may
// shut down the computer. Returns false when that fails or the token does not hold the privilege.
bool EnableShutdownPrivilege();

}  // namespace kelvo
