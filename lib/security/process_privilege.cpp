#include "lib/security/process_privilege.h"

#include "lib/platform/guarded_call.h"
#include "lib/platform/owned.h"

namespace kelvo {

namespace {

BOOL AdjustPrivilege(HANDLE token, LUID privilege, bool enable) {
  TOKEN_PRIVILEGES privileges{};
  privileges.PrivilegeCount = 1;
  privileges.Privileges[0].Luid = privilege;
  privileges.Privileges[0].Attributes = enable ? SE_PRIVILEGE_ENABLED : 0;
  return AdjustTokenPrivileges(token, FALSE, &privileges, sizeof(privileges), nullptr, nullptr);
}

}  // namespace

BOOL EnablePrivilege(const wchar_t* name, BOOL enable) {
  OwnedKernelObject token;
  return GuardedAnswer(FALSE, [&]() -> BOOL {
    LUID privilege{};
    if (LookupPrivilegeValueW(nullptr, name, &privilege) == FALSE ||
        !token.KeepIf(OpenProcessToken(GetCurrentProcess(), TOKEN_ADJUST_PRIVILEGES,
                                       token.Receive()) != FALSE)) {
      return FALSE;
    }
    return AdjustPrivilege(token.get(), privilege, enable != FALSE);
  });
}

PrivilegeOutcome EnablePrivilegeWithOutcome(const wchar_t* name) {
  OwnedKernelObject token;
  LUID privilege{};
  if (!token.KeepIf(OpenProcessToken(GetCurrentProcess(), TOKEN_ADJUST_PRIVILEGES | TOKEN_QUERY,
                                     token.Receive()) != FALSE) ||
      LookupPrivilegeValueW(nullptr, name, &privilege) == FALSE) {
    return {.error = GetLastError()};
  }
  const BOOL adjusted = AdjustPrivilege(token.get(), privilege, true);
  return {.adjusted = adjusted, .error = GetLastError()};
}

}  // namespace kelvo
