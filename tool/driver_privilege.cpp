#include "tool/driver_privilege.h"

#include "lib/security/process_privilege.h"
#include "tool/console_report.h"

namespace kelvo {

bool EnableLoadDriverPrivilege() {
  // AdjustTokenPrivileges returns TRUE even when the token lacks the privilege; only the last error
  // shows that the privilege is missing.
  const DWORD error = EnablePrivilegeWithOutcome(L"SeLoadDriverPrivilege").error;
  if (error != ERROR_SUCCESS) {
    // The text names OpenProcessToken even when the error is from LookupPrivilegeValueW or
    // AdjustTokenPrivileges.
    Report(L"ERR: OpenProcessToken failed, err = %08lX\n", error);
  }
  return error == ERROR_SUCCESS;
}

}  // namespace kelvo
