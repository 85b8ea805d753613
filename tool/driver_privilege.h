#pragma once

namespace kelvo {

// Enables "SeLoadDriverPrivilege" in the current process's token until the process ends. Returns
// true on success. On failure, writes one "ERR: " line to standard output and returns false. The
// line contains the error code of the failed call, or ERROR_NOT_ALL_ASSIGNED when the token does
// not hold the privilege.
bool EnableLoadDriverPrivilege();

}  // namespace kelvo
