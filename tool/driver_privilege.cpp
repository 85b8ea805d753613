#include "tool/driver_privilege.h"

#include "lib/security/process_privilege.h"
#include "tool/console_report.h"

namespace kelvo {

bool EnableLoadDriverPrivilege() {
  // AdjustTokenPrivileges also succeeds when the token lacks the privilege; only the last error
  // shows that.
  const DWORD error = EnablePrivilegeWithOutcome(L"SeLoadDriverPrivilege").error;
  if (error != ERROR_SUCCESS) {
    // The text is the same whichever of the three calls fails; only the code differs.
    Report(L"ERR: OpenProcessToken failed, err = %08lX\n", error);
  }
  return error == ERROR_SUCCESS;
}

}  // namespace kelvo
