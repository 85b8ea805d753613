#pragma once

#include <windows.h>

namespace kelvo {

// Privileges in the token of this process, for the rest of its life: OpenProcessToken,
// LookupPrivilegeValueW on this system, AdjustTokenPrivileges. `name` is Windows' name of the
// privilege, such as "SeShutdownPrivilege".

// Enables or disables a privilege. Returns what AdjustTokenPrivileges returns, which is TRUE also
// for a privilege that the token does not hold; FALSE when an earlier step fails or an exception
// ends one.
BOOL EnablePrivilege(const wchar_t* name, BOOL enable);

// How enabling a privilege went.
struct PrivilegeOutcome {
  // What AdjustTokenPrivileges returned; FALSE when it was not reached. TRUE does not mean that the
  // token holds the privilege.
  BOOL adjusted = FALSE;
  // The last error after the call that failed or, when none did, after the adjustment:
  // ERROR_NOT_ALL_ASSIGNED when the token does not hold the privilege.
  DWORD error = ERROR_SUCCESS;
};

// Enables a privilege and reports how that went, for callers that must know whether it is held.
PrivilegeOutcome EnablePrivilegeWithOutcome(const wchar_t* name);

}  // namespace kelvo
