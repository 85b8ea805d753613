#pragma once

namespace kelvo {

// Enables "SeLoadDriverPrivilege" in the process's token until the process ends. Returns true on
// success; otherwise reports one "ERR: " line with the code of the call that failed and returns
// false.
bool EnableLoadDriverPrivilege();

}  // namespace kelvo
