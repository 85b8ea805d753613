#pragma once

namespace kelvo {

// Allows this process to shut the machine down: enables "SeShutdownPrivilege" in its token, for the
// rest of its life. False when that fails, also because the token does not hold the privilege.
bool EnableShutdownPrivilege();

}  // namespace kelvo
