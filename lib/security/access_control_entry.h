#pragma once

#include <windows.h>

namespace kelvo {

// Returns a new ACE with the layout of ACCESS_ALLOWED_ACE. The ACE has the given type (such as
// ACCESS_ALLOWED_ACE_TYPE), flags (such as INHERITED_ACE) and mask. A copy of the SID begins at
// byte offset 8 of the ACE. The SID must be valid. The caller frees the ACE with LocalFree. When
// memory runs out or the SID cannot be copied, traces the failure and returns null. If an exception
// occurs, returns null and traces nothing.
ACCESS_ALLOWED_ACE* AllocateACE(BYTE type, BYTE flags, ACCESS_MASK mask, PSID sid);

// Returns TRUE when both ACEs have the same type, flags, size, mask and SID. An ACE whose AceSize
// is too small for its SID equals no ACE.
BOOL EqualACE(const ACCESS_ALLOWED_ACE* a, const ACCESS_ALLOWED_ACE* b);

}  // namespace kelvo
