#include "tool/driver_privilege.h"

#include "lib/security/process_privilege.h"
#include "tool/console_report.h"

namespace kelvo {

bool EnableLoadDriverPrivilege() {
  // The adjustment also succeeds when the token lacks the privilege: only the last error shows it.
  const DWORD error = EnablePrivilegeWithOutcome(L"SeLoadDriverPrivilege").error;
  if (error != ERROR_SUCCESS) {
    // One wording for all three calls; only the code differs.
    Report(L"ERR: OpenProcessToken failed, err = %08lX\n", error);
  }
  return error == ERROR_SUCCESS;
}

}  // namespace kelvo
