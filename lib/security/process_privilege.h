#pragma once

#include <windows.h>

namespace kelvo {

// EnablePrivilege and EnablePrivilegeWithOutcome change a privilege in this process's token
// (OpenProcessToken, LookupPrivilegeValueW on the local computer, AdjustTokenPrivileges). The
// change lasts until the process exits. `name` is Windows' name for the privilege, such as
// "SeShutdownPrivilege".

// Enables or disables a privilege. Returns the result of AdjustTokenPrivileges, which is TRUE even
// for a privilege that the token does not hold. Returns FALSE when a call before
// AdjustTokenPrivileges fails or an exception occurs.
BOOL EnablePrivilege(const wchar_t* name, BOOL enable);

// The result of EnablePrivilegeWithOutcome.
struct PrivilegeOutcome {
  // The result of AdjustTokenPrivileges, or FALSE when that function was not called. TRUE does not
  // mean that the token holds the privilege.
  BOOL adjusted = FALSE;
  // When a call fails, the error code of that call (GetLastError). When no call fails, the
  // last-error code that AdjustTokenPrivileges sets: ERROR_NOT_ALL_ASSIGNED when the token does not
  // hold the privilege, otherwise ERROR_SUCCESS.
  DWORD error = ERROR_SUCCESS;
};

// Enables a privilege and returns the outcome, for callers that must find out whether the token
// holds the privilege.
PrivilegeOutcome EnablePrivilegeWithOutcome(const wchar_t* name);

}  // namespace kelvo
