#include "tool/driver_privilege.h"

#include <windows.h>

#include "lib/platform/owned.h"
#include "tool/console_report.h"

namespace kelvo {

namespace {

DWORD TryEnable() {
  OwnedKernelObject token;
  if (OpenProcessToken(GetCurrentProcess(), TOKEN_ADJUST_PRIVILEGES | TOKEN_QUERY,
                       token.Receive()) == FALSE) {
    return GetLastError();
  }
  TOKEN_PRIVILEGES privileges{};
  privileges.PrivilegeCount = 1;
  privileges.Privileges[0].Attributes = SE_PRIVILEGE_ENABLED;
  if (LookupPrivilegeValueW(nullptr, L"SeLoadDriverPrivilege", &privileges.Privileges[0].Luid) ==
      FALSE) {
    return GetLastError();
  }
  // The call succeeds also when the token does not hold the privilege; only the last error tells.
  AdjustTokenPrivileges(token.get(), FALSE, &privileges, sizeof(privileges), nullptr, nullptr);
  return GetLastError();
}

}  // namespace

bool EnableLoadDriverPrivilege() {
  const DWORD error = TryEnable();
  if (error != ERROR_SUCCESS) {
    // One wording for all three calls; the code tells them apart.
    Report(L"ERR: OpenProcessToken failed, err = %08lX\n", error);
  }
  return error == ERROR_SUCCESS;
}

}  // namespace kelvo
