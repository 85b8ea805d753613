#include "lib/security/access_control_list.h"

#include "lib/security/access_control_entry.h"
#include "lib/security/internal/ace_view.h"
#include "lib/security/internal/guarded_operation.h"

namespace kelvo {

namespace {

DWORD Find(const ACL* acl, const ACCESS_ALLOWED_ACE* ace) {
  ACL_SIZE_INFORMATION size{};
  if (!internal::QueryAclSize(acl, size)) {
    internal::StepFailed(L"FindACEInACL GetAclInformation Failed");
    return kNoAceIndex;
  }
  for (DWORD index = size.AceCount; index-- > 0;) {
    const ACCESS_ALLOWED_ACE* const candidate = internal::AceAt(acl, index);
    if (candidate == nullptr) {
      internal::StepFailed(L"FindACEInACL GetAce Failed");
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
  if (!internal::QueryAclSize(source, size)) {
    return internal::StepFailed(L"CopyACL GetAclInformation Failed");
  }
  const bool canGrow = internal::AreAcesInsideAcl(destination);
  for (DWORD index = 0; index < size.AceCount; ++index) {
    ACCESS_ALLOWED_ACE* const ace = internal::AceAt(source, index);
    if (ace == nullptr) {
      return internal::StepFailed(L"CopyACL GetAce Failed");
    }
    if (!canGrow ||
        AddAce(destination, ACL_REVISION, MAXDWORD, ace, ace->Header.AceSize) == FALSE) {
      return internal::StepFailed(L"CopyACL AddAce Failed");
    }
  }
  return true;
}

// What an access entry for the SID adds beside the SID itself.
constexpr DWORD kAceWithoutSid = 8;

DWORD CalculateSize(const ACL* acl, const PSID* sids, DWORD sidCount,
                    const ACCESS_ALLOWED_ACE* const* aces, DWORD aceCount) {
  ACL_SIZE_INFORMATION size{};
  if (acl != nullptr && !internal::QueryAclSize(acl, size)) {
    internal::StepFailed(L"CalculateACLSize GetAclInformation Failed");
    return 0;
  }
  DWORD bytes = size.AclBytesInUse;
  for (DWORD index = sidCount; index-- > 0;) {
    if (IsValidSid(sids[index]) == FALSE) {
      internal::StepFailed(L"CalculateACLSize IsValidSid Failed");
      return 0;
    }
    bytes += GetLengthSid(sids[index]) + kAceWithoutSid;
  }
  for (DWORD index = 0; index < aceCount; ++index) {
    bytes += aces[index]->Header.AceSize;
  }
  return bytes + sizeof(ACL);
}

}  // namespace

DWORD FindACEInACL(const ACL* acl, const ACCESS_ALLOWED_ACE* ace) {
  return internal::GuardedAnswer(kNoAceIndex, [&] { return Find(acl, ace); });
}

BOOL CopyACL(ACL* destination, const ACL* source) {
  return internal::GuardedAnswer(false, [&] { return Copy(destination, source); }) ? TRUE : FALSE;
}

DWORD CalculateACLSize(const ACL* acl, const PSID* sids, DWORD sidCount,
                       const ACCESS_ALLOWED_ACE* const* aces, DWORD aceCount) {
  return internal::GuardedAnswer(
      DWORD{0}, [&] { return CalculateSize(acl, sids, sidCount, aces, aceCount); });
}

}  // namespace kelvo
