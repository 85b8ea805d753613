#pragma once

#include <windows.h>

namespace kelvo {

// A new entry of the layout of ACCESS_ALLOWED_ACE: type and flags (ACCESS_ALLOWED_ACE_TYPE,
// INHERITED_ACE and so on), the mask, and a copy of the valid SID from byte 8. The caller frees it
// with LocalFree. Null when memory is short or the SID cannot be copied, which is traced.
ACCESS_ALLOWED_ACE* AllocateACE(BYTE type, BYTE flags, ACCESS_MASK mask, PSID sid);

// TRUE when type, flags, size, mask and SID of both entries are the same. An entry of AceSize bytes
// that is too short for its SID equals none.
BOOL EqualACE(const ACCESS_ALLOWED_ACE* a, const ACCESS_ALLOWED_ACE* b);

}  // namespace kelvo
