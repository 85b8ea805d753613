#include "lib/security/token_privileges.h"

#include <cstddef>
#include <cstring>
#include <utility>

#include "lib/platform/owned.h"
#include "lib/security/internal/guarded_operation.h"

namespace kelvo {

namespace {

// The first three names are listed twice, as token_privileges.h says.
constexpr const wchar_t* kBuiltInPrivileges[] = {
    L"SeCreateTokenPrivilege",
    L"SeAssignPrimaryTokenPrivilege",
    L"SeLockMemoryPrivilege",
    L"SeCreateTokenPrivilege",
    L"SeAssignPrimaryTokenPrivilege",
    L"SeLockMemoryPrivilege",
    L"SeIncreaseQuotaPrivilege",
    L"SeTcbPrivilege",
    L"SeSecurityPrivilege",
    L"SeTakeOwnershipPrivilege",
    L"SeLoadDriverPrivilege",
    L"SeSystemProfilePrivilege",
    L"SeSystemtimePrivilege",
    L"SeProfileSingleProcessPrivilege",
    L"SeIncreaseBasePriorityPrivilege",
    L"SeCreatePagefilePrivilege",
    L"SeCreatePermanentPrivilege",
    L"SeBackupPrivilege",
    L"SeRestorePrivilege",
    L"SeShutdownPrivilege",
    L"SeDebugPrivilege",
    L"SeAuditPrivilege",
    L"SeSystemEnvironmentPrivilege",
    L"SeChangeNotifyPrivilege",
    L"SeRemoteShutdownPrivilege",
    L"SeUndockPrivilege",
    L"SeSyncAgentPrivilege",
    L"SeEnableDelegationPrivilege",
    nullptr,
};

using OwnedPrivileges = OwnedLocalMemory<TOKEN_PRIVILEGES>;

std::size_t SizeOfPrivileges(DWORD count) {
  return offsetof(TOKEN_PRIVILEGES, Privileges) +
         (std::size_t{count} * sizeof(LUID_AND_ATTRIBUTES));
}

OwnedPrivileges AllocatePrivileges(DWORD count) {
  return OwnedPrivileges(static_cast<TOKEN_PRIVILEGES*>(LocalAlloc(LPTR, SizeOfPrivileges(count))));
}

DWORD CountNames(const wchar_t* const* names) {
  DWORD count = 0;
  while (names != nullptr && names[count] != nullptr) {
    ++count;
  }
  return count;
}

// Writes one entry to `entries` for each name that this system supports, without gaps between the
// entries. Returns the number of entries written.
DWORD LookUpPrivileges(const wchar_t* const* names, DWORD count, LUID_AND_ATTRIBUTES* entries) {
  DWORD known = 0;
  for (DWORD index = 0; index < count; ++index) {
    if (LookupPrivilegeValueW(nullptr, names[index], &entries[known].Luid) != FALSE) {
      entries[known].Attributes = SE_PRIVILEGE_ENABLED_BY_DEFAULT | SE_PRIVILEGE_ENABLED;
      ++known;
    }
  }
  return known;
}

bool MakePrivileges(const wchar_t* const* names, DWORD* known, OwnedPrivileges& all,
                    OwnedPrivileges& result) {
  const DWORD count = CountNames(names);
  all = AllocatePrivileges(count);
  if (!all) {
    return false;
  }
  all.get()->PrivilegeCount = count;
  *known = LookUpPrivileges(names, count, all.get()->Privileges);
  if (*known == count) {
    result = std::move(all);
    return true;
  }
  result = AllocatePrivileges(*known);
  if (!result) {
    return false;
  }
  std::memcpy(result.get(), all.get(), SizeOfPrivileges(*known));
  result.get()->PrivilegeCount = *known;
  return true;
}

}  // namespace

TOKEN_PRIVILEGES* CreateTokenPriv(DWORD* count, const wchar_t* const* names, BOOL useBuiltIn) {
  OwnedPrivileges all;
  OwnedPrivileges result;
  const BOOL made = internal::GuardedOperation(
      // Traced when the steps below fail, even without an exception. Nothing else is traced.
      L"CreateTokenPriv exception caught in __finally",
      [&] {
        return MakePrivileges(useBuiltIn != FALSE ? kBuiltInPrivileges : names, count, all, result);
      },
      [&] { all.reset(); });
  return made != FALSE ? result.release() : nullptr;
}

}  // namespace kelvo
