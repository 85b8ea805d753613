#pragma once

namespace kelvo {

// Enables "SeLoadDriverPrivilege" in the process's token, for the rest of the process's life.
// Returns true when it is enabled; otherwise reports one "ERR: " line with the code of the call
// that failed and returns false.
bool EnableLoadDriverPrivilege();

}  // namespace kelvo
