#include "lib/process/internal/primary_token.h"

#include "lib/platform/owned.h"
#include "lib/security/internal/guarded_operation.h"
#include "lib/security/token_privileges.h"

namespace kelvo::internal {

HANDLE OpenPrimaryToken() {
  OwnedKernelObject token;
  if (OpenProcessToken(GetCurrentProcess(), TOKEN_ASSIGN_PRIMARY | TOKEN_DUPLICATE | TOKEN_QUERY,
                       token.Receive()) == FALSE) {
    return nullptr;
  }
  HANDLE duplicate = nullptr;
  if (DuplicateTokenEx(token.get(), MAXIMUM_ALLOWED, nullptr, SecurityDelegation, TokenPrimary,
                       &duplicate) != FALSE) {
    token.reset(duplicate);
  }
  return token.release();
}

bool EnableStartPrivileges() {
  if (EnablePrivilege(L"SeTakeOwnershipPrivilege", TRUE) == FALSE) {
    return StepFailed(L"RunAsUser EnablePrivilege SeTakeOwnershipPrivilege Failed");
  }
  for (const wchar_t* const name :
       {L"SeTcbPrivilege", L"SeChangeNotifyPrivilege", L"SeIncreaseQuotaPrivilege",
        L"SeAssignPrimaryTokenPrivilege", L"SeCreateTokenPrivilege"}) {
    EnablePrivilege(name, TRUE);
  }
  return true;
}

}  // namespace kelvo::internal
