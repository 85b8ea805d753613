#pragma once

#include <windows.h>

namespace kelvo {

// Returns a new ACE laid out like ACCESS_ALLOWED_ACE: type (such as ACCESS_ALLOWED_ACE_TYPE), flags
// (such as INHERITED_ACE), mask, and a copy of the SID, which must be valid, at byte offset 8. The
// caller frees it with LocalFree. Returns null when memory runs out or the SID cannot be copied,
// which is traced, and after an exception, which is not.
ACCESS_ALLOWED_ACE* AllocateACE(BYTE type, BYTE flags, ACCESS_MASK mask, PSID sid);

// Returns TRUE when both ACEs have the same type, flags, size, mask and SID. An ACE whose AceSize
// is too small for its SID equals none.
BOOL EqualACE(const ACCESS_ALLOWED_ACE* a, const ACCESS_ALLOWED_ACE* b);

}  // namespace kelvo
