#include "lib/security/process_privilege.h"

#include "lib/platform/owned.h"

namespace kelvo {

PrivilegeOutcome EnableProcessPrivilege(const wchar_t* name) {
  OwnedKernelObject token;
  if (OpenProcessToken(GetCurrentProcess(), TOKEN_ADJUST_PRIVILEGES | TOKEN_QUERY,
                       token.Receive()) == FALSE) {
    return {.error = GetLastError()};
  }
  TOKEN_PRIVILEGES privileges{};
  privileges.PrivilegeCount = 1;
  privileges.Privileges[0].Attributes = SE_PRIVILEGE_ENABLED;
  if (LookupPrivilegeValueW(nullptr, name, &privileges.Privileges[0].Luid) == FALSE) {
    return {.error = GetLastError()};
  }
  const BOOL adjusted =
      AdjustTokenPrivileges(token.get(), FALSE, &privileges, sizeof(privileges), nullptr, nullptr);
  return {.adjusted = adjusted, .error = GetLastError()};
}

}  // namespace kelvo
