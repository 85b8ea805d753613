#include "lib/security/internal/ace_view.h"

#include <cstddef>

namespace kelvo::internal {

bool AreAcesInsideAcl(const ACL* acl) {
  if (acl == nullptr) {
    return false;
  }
  DWORD end = sizeof(ACL);
  for (DWORD left = acl->AceCount; left > 0; --left) {
    if (end + sizeof(ACE_HEADER) > acl->AclSize) {
      return false;
    }
    const auto* const bytes = reinterpret_cast<const BYTE*>(acl);
    const DWORD aceSize = reinterpret_cast<const ACE_HEADER*>(bytes + end)->AceSize;
    if (aceSize < sizeof(ACE_HEADER)) {
      return false;
    }
    end += aceSize;
  }
  return end <= acl->AclSize;
}

bool QueryAclSize(const ACL* acl, ACL_SIZE_INFORMATION& size) {
  if (!AreAcesInsideAcl(acl)) {
    SetLastError(ERROR_INVALID_ACL);
    return false;
  }
  return GetAclInformation(const_cast<ACL*>(acl), &size, sizeof(size), AclSizeInformation) != FALSE;
}

ACCESS_ALLOWED_ACE* AceAt(const ACL* acl, DWORD index) {
  void* ace = nullptr;
  return GetAce(const_cast<ACL*>(acl), index, &ace) != FALSE ? static_cast<ACCESS_ALLOWED_ACE*>(ace)
                                                             : nullptr;
}

PSID SidOfAce(const ACCESS_ALLOWED_ACE* ace) {
  constexpr DWORD kSidOffset = offsetof(ACCESS_ALLOWED_ACE, SidStart);
  const DWORD aceSize = ace->Header.AceSize;
  if (aceSize < kSidOffset + offsetof(SID, SubAuthority)) {
    return nullptr;
  }
  const auto* const sid = reinterpret_cast<const SID*>(&ace->SidStart);
  return kSidOffset + GetSidLengthRequired(sid->SubAuthorityCount) <= aceSize
             ? const_cast<SID*>(sid)
             : nullptr;
}

}  // namespace kelvo::internal
