#include "tool/driver_privilege.h"

#include "lib/security/process_privilege.h"
#include "tool/console_report.h"

namespace kelvo {

bool EnableLoadDriverPrivilege() {
  // Checks `error`, because `adjusted` (the result of AdjustTokenPrivileges) is TRUE even when the
  // token does not hold the privilege.
  const DWORD error = EnablePrivilegeWithOutcome(L"SeLoadDriverPrivilege").error;
  if (error != ERROR_SUCCESS) {
    // The message names OpenProcessToken, even when the error code comes from LookupPrivilegeValueW
    // or AdjustTokenPrivileges.
    Report(L"ERR: OpenProcessToken failed, err = %08lX\n", error);
  }
  return error == ERROR_SUCCESS;
}

}  // namespace kelvo
