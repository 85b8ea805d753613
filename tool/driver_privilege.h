#pragma once

namespace kelvo {

// Enables "SeLoadDriverPrivilege" in the process's token until the process ends. Returns true on
// success. On failure, reports one "ERR: " line with the error code of the failed call and returns
// false.
bool EnableLoadDriverPrivilege();

}  // namespace kelvo
