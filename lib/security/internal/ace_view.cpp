#include "lib/security/internal/ace_view.h"

#include <cstring>

namespace kelvo::internal {

bool AreAcesInsideAcl(const ACL* acl) {
  if (acl == nullptr) {
    return false;
  }
  const auto* const bytes = reinterpret_cast<const BYTE*>(acl);
  DWORD end = sizeof(ACL);
  for (DWORD left = acl->AceCount; left > 0; --left) {
    if (end + sizeof(ACE_HEADER) > acl->AclSize) {
      return false;
    }
    const DWORD aceSize = HeaderOfAce(bytes + end).AceSize;
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

void* AceAt(const ACL* acl, DWORD index) {
  void* ace = nullptr;
  return GetAce(const_cast<ACL*>(acl), index, &ace) != FALSE ? ace : nullptr;
}

ACE_HEADER HeaderOfAce(const void* ace) {
  ACE_HEADER header{};
  std::memcpy(&header, ace, sizeof(header));
  return header;
}

PSID SidOfAce(const void* ace) {
  const DWORD aceSize = HeaderOfAce(ace).AceSize;
  if (aceSize < kSidOffset + offsetof(SID, SubAuthority)) {
    return nullptr;
  }
  const BYTE* const sid = static_cast<const BYTE*>(ace) + kSidOffset;
  const BYTE subAuthorities = sid[offsetof(SID, SubAuthorityCount)];
  return kSidOffset + GetSidLengthRequired(subAuthorities) <= aceSize ? const_cast<BYTE*>(sid)
                                                                      : nullptr;
}

}  // namespace kelvo::internal
