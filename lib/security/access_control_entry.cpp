#include "lib/security/access_control_entry.h"

#include <cstddef>
#include <cstring>

#include "lib/platform/owned.h"
#include "lib/security/internal/ace_view.h"
#include "lib/security/internal/guarded_operation.h"

namespace kelvo {

namespace {

constexpr DWORD kSidOffset = offsetof(ACCESS_ALLOWED_ACE, SidStart);

bool MakeAce(BYTE type, BYTE flags, ACCESS_MASK mask, PSID sid,
             OwnedLocalMemory<ACCESS_ALLOWED_ACE>& ace) {
  const DWORD sidLength = GetLengthSid(sid);
  ace.reset(static_cast<ACCESS_ALLOWED_ACE*>(LocalAlloc(LPTR, kSidOffset + sidLength)));
  if (!ace) {
    return internal::StepFailed(L"AllocateACE LocalAlloc Failed");
  }
  if (CopySid(sidLength, &ace.get()->SidStart, sid) == FALSE) {
    return internal::StepFailed(L"AllocateACE CopySid Failed");
  }
  ace.get()->Header = {
      .AceType = type, .AceFlags = flags, .AceSize = static_cast<WORD>(kSidOffset + sidLength)};
  ace.get()->Mask = mask;
  return true;
}

}  // namespace

ACCESS_ALLOWED_ACE* AllocateACE(BYTE type, BYTE flags, ACCESS_MASK mask, PSID sid) {
  OwnedLocalMemory<ACCESS_ALLOWED_ACE> ace;
  const bool made =
      internal::GuardedAnswer(false, [&] { return MakeAce(type, flags, mask, sid, ace); });
  return made ? ace.release() : nullptr;
}

BOOL EqualACE(const ACCESS_ALLOWED_ACE* a, const ACCESS_ALLOWED_ACE* b) {
  return internal::GuardedAnswer(FALSE, [&]() -> BOOL {
    if (a->Header.AceType != b->Header.AceType) {
      return FALSE;
    }
    const PSID sidOfA = internal::SidOfAce(a);
    const PSID sidOfB = internal::SidOfAce(b);
    if (sidOfA == nullptr || sidOfB == nullptr || std::memcmp(a, b, kSidOffset) != 0) {
      return FALSE;
    }
    return EqualSid(sidOfA, sidOfB);
  });
}

}  // namespace kelvo
