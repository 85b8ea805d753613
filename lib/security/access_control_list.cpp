#include "lib/security/access_control_list.h"

#include "lib/security/access_control_entry.h"
#include "lib/security/internal/ace_view.h"
#include "lib/security/internal/guarded_operation.h"

namespace kelvo {

namespace {

DWORD Find(const ACL* acl, const ACCESS_ALLOWED_ACE* ace) {
  ACL_SIZE_INFORMATION size{};
  if (!internal::Check(internal::QueryAclSize(acl, size),
                       L"FindACEInACL GetAclInformation Failed")) {
    return kNoAceIndex;
  }
  for (DWORD index = size.AceCount; index-- > 0;) {
    const auto* const candidate = static_cast<ACCESS_ALLOWED_ACE*>(internal::AceAt(acl, index));
    if (!internal::Check(candidate != nullptr, L"FindACEInACL GetAce Failed")) {
      return kNoAceIndex;
    }
    if (EqualACE(candidate, ace) != FALSE) {
      return index;
    }
  }
  return kNoAceIndex;
}

bool Copy(ACL* destination, const ACL* source) {
  ACL_SIZE_INFORMATION size{};
  if (!internal::Check(internal::QueryAclSize(source, size), L"CopyACL GetAclInformation Failed")) {
    return false;
  }
  const bool canGrow = internal::AreAcesInsideAcl(destination);
  for (DWORD index = 0; index < size.AceCount; ++index) {
    void* const ace = internal::AceAt(source, index);
    if (!internal::Check(ace != nullptr, L"CopyACL GetAce Failed")) {
      return false;
    }
    const bool added = canGrow && AddAce(destination, ACL_REVISION, MAXDWORD, ace,
                                         internal::HeaderOfAce(ace).AceSize) != FALSE;
    if (!internal::Check(added, L"CopyACL AddAce Failed")) {
      return false;
    }
  }
  return true;
}

DWORD CalculateSize(const ACL* acl, const PSID* sids, DWORD sidCount,
                    const ACCESS_ALLOWED_ACE* const* aces, DWORD aceCount) {
  ACL_SIZE_INFORMATION size{};
  if (!internal::Check(acl == nullptr || internal::QueryAclSize(acl, size),
                       L"CalculateACLSize GetAclInformation Failed")) {
    return 0;
  }
  DWORD bytes = size.AclBytesInUse;
  for (DWORD index = sidCount; index-- > 0;) {
    if (!internal::Check(IsValidSid(sids[index]) != FALSE, L"CalculateACLSize IsValidSid Failed")) {
      return 0;
    }
    bytes += GetLengthSid(sids[index]) + internal::kSidOffset;
  }
  for (DWORD index = 0; index < aceCount; ++index) {
    bytes += internal::HeaderOfAce(aces[index]).AceSize;
  }
  return bytes + sizeof(ACL);
}

}  // namespace

DWORD FindACEInACL(const ACL* acl, const ACCESS_ALLOWED_ACE* ace) {
  return GuardedAnswer(kNoAceIndex, [&] { return Find(acl, ace); });
}

BOOL CopyACL(ACL* destination, const ACL* source) {
  return GuardedAnswer(false, [&] { return Copy(destination, source); }) ? TRUE : FALSE;
}

DWORD CalculateACLSize(const ACL* acl, const PSID* sids, DWORD sidCount,
                       const ACCESS_ALLOWED_ACE* const* aces, DWORD aceCount) {
  return GuardedAnswer(DWORD{0},
                       [&] { return CalculateSize(acl, sids, sidCount, aces, aceCount); });
}

}  // namespace kelvo
