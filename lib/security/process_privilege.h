#pragma once

#include <windows.h>

namespace kelvo {

struct PrivilegeOutcome {
  // What AdjustTokenPrivileges answered; FALSE when it was not reached. TRUE does not mean that the
  // token holds the privilege.
  BOOL adjusted = FALSE;
  // The last error after the call that failed or, when none did, after the adjustment:
  // ERROR_NOT_ALL_ASSIGNED when the token does not hold the privilege.
  DWORD error = ERROR_SUCCESS;
};

// Enables the privilege `name` ("SeShutdownPrivilege") in the process's token, for the rest of the
// process's life: OpenProcessToken, LookupPrivilegeValueW on this system, AdjustTokenPrivileges.
// Each caller judges the outcome by its own rule.
PrivilegeOutcome EnableProcessPrivilege(const wchar_t* name);

}  // namespace kelvo
