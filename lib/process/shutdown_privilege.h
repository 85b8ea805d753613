#pragma once

namespace kelvo {

// Allows this process to shut the machine down: enables "SeShutdownPrivilege" in its token, for the
// rest of its life. Returns false when that fails, also when the token does not hold the privilege.
bool EnableShutdownPrivilege();

}  // namespace kelvo
