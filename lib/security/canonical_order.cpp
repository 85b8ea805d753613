#include "lib/security/canonical_order.h"

#include <array>

#include "lib/security/access_control_list.h"
#include "lib/security/internal/ace_view.h"
#include "lib/security/internal/guarded_operation.h"

namespace kelvo {

namespace {

DWORD FindInsertionIndex(const ACL* acl, const ACCESS_ALLOWED_ACE* ace) {
  const std::optional<DWORD> rank = CanonicalRank(internal::HeaderOfAce(ace));
  if (!internal::Check(rank.has_value(), L"GetACEInsertionIndex Bad Ace Type")) {
    return kNoAceIndex;
  }
  ACL_SIZE_INFORMATION size{};
  if (!internal::Check(internal::QueryAclSize(acl, size),
                       L"GetACEInsertionIndex GetAclInformation Failed")) {
    return kNoAceIndex;
  }
  DWORD index = 0;
  for (; index < size.AceCount; ++index) {
    const void* const present = internal::AceAt(acl, index);
    if (!internal::Check(present != nullptr, L"GetACEInsertionIndex GetAce Failed")) {
      return index;
    }
    const std::optional<DWORD> presentRank = CanonicalRank(internal::HeaderOfAce(present));
    // In this message, "Src" means `acl`.
    if (!internal::Check(presentRank.has_value(), L"GetACEInsertionIndex Bad Src Ace Type")) {
      return kNoAceIndex;
    }
    if (presentRank >= rank) {
      return index;
    }
  }
  return index;
}

}  // namespace

std::optional<DWORD> CanonicalRank(const ACE_HEADER& ace) {
  constexpr std::array<BYTE, 4> kRankedTypes = {
      ACCESS_DENIED_ACE_TYPE, ACCESS_DENIED_OBJECT_ACE_TYPE, ACCESS_ALLOWED_ACE_TYPE,
      ACCESS_ALLOWED_OBJECT_ACE_TYPE};
  for (DWORD rank = 0; rank < kRankedTypes.size(); ++rank) {
    if (ace.AceType == kRankedTypes[rank]) {
      const bool isInherited = (ace.AceFlags & INHERITED_ACE) != 0;
      return isInherited ? rank + static_cast<DWORD>(kRankedTypes.size()) : rank;
    }
  }
  return std::nullopt;
}

DWORD GetACEInsertionIndex(const ACL* acl, const ACCESS_ALLOWED_ACE* ace) {
  return GuardedAnswer(kNoAceIndex, [&] { return FindInsertionIndex(acl, ace); });
}

}  // namespace kelvo
