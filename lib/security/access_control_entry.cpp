#include "lib/security/access_control_entry.h"

#include <cstring>

#include "lib/platform/owned.h"
#include "lib/security/internal/ace_view.h"
#include "lib/security/internal/guarded_operation.h"

namespace kelvo {

namespace {

using internal::kSidOffset;

bool MakeAce(BYTE type, BYTE flags, ACCESS_MASK mask, PSID sid,
             OwnedLocalMemory<ACCESS_ALLOWED_ACE>& ace) {
  const DWORD sidLength = GetLengthSid(sid);
  ace.reset(static_cast<ACCESS_ALLOWED_ACE*>(LocalAlloc(LPTR, kSidOffset + sidLength)));
  if (!internal::Check(ace.get() != nullptr, L"AllocateACE LocalAlloc Failed")) {
    return false;
  }
  if (!internal::Check(CopySid(sidLength, &ace.get()->SidStart, sid) != FALSE,
                       L"AllocateACE CopySid Failed")) {
    return false;
  }
  ace.get()->Header = {
      .AceType = type, .AceFlags = flags, .AceSize = static_cast<WORD>(kSidOffset + sidLength)};
  ace.get()->Mask = mask;
  return true;
}

}  // namespace

ACCESS_ALLOWED_ACE* AllocateACE(BYTE type, BYTE flags, ACCESS_MASK mask, PSID sid) {
  OwnedLocalMemory<ACCESS_ALLOWED_ACE> ace;
  const bool made = GuardedAnswer(false, [&] { return MakeAce(type, flags, mask, sid, ace); });
  return made ? ace.release() : nullptr;
}

BOOL EqualACE(const ACCESS_ALLOWED_ACE* a, const ACCESS_ALLOWED_ACE* b) {
  return GuardedAnswer(FALSE, [&]() -> BOOL {
    if (internal::HeaderOfAce(a).AceType != internal::HeaderOfAce(b).AceType) {
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
