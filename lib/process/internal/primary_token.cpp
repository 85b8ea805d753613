#include "lib/process/internal/primary_token.h"

#include <utility>

#include "lib/platform/guarded_call.h"
#include "lib/security/internal/guarded_operation.h"
#include "lib/security/process_privilege.h"

namespace kelvo::internal {

OwnedKernelObject DuplicateAsPrimary(OwnedKernelObject token) {
  OwnedKernelObject duplicate;
  // The impersonation level (SecurityDelegation) has no effect on a primary token.
  GuardedCall([&] {
    duplicate.KeepIf(DuplicateTokenEx(token.get(), MAXIMUM_ALLOWED, nullptr, SecurityDelegation,
                                      TokenPrimary, duplicate.Receive()) != FALSE);
  });
  return duplicate ? std::move(duplicate) : std::move(token);
}

bool EnableStartPrivileges() {
  if (!Check(EnablePrivilege(L"SeTakeOwnershipPrivilege", TRUE) != FALSE,
             L"RunAsUser EnablePrivilege SeTakeOwnershipPrivilege Failed")) {
    return false;
  }
  for (const wchar_t* const name :
       {L"SeTcbPrivilege", L"SeChangeNotifyPrivilege", L"SeIncreaseQuotaPrivilege",
        L"SeAssignPrimaryTokenPrivilege", L"SeCreateTokenPrivilege"}) {
    EnablePrivilege(name, TRUE);
  }
  return true;
}

}  // namespace kelvo::internal
