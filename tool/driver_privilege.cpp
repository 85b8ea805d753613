#include "tool/driver_privilege.h"

#include "lib/security/process_privilege.h"
#include "tool/console_report.h"

namespace kelvo {

bool EnableLoadDriverPrivilege() {
  // Only the last error tells: the adjustment succeeds also when the token lacks the privilege.
  const DWORD error = EnablePrivilegeWithOutcome(L"SeLoadDriverPrivilege").error;
  if (error != ERROR_SUCCESS) {
    // One wording for all three calls; the code tells them apart.
    Report(L"ERR: OpenProcessToken failed, err = %08lX\n", error);
  }
  return error == ERROR_SUCCESS;
}

}  // namespace kelvo
