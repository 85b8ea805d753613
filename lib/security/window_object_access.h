#pragma once

#include <windows.h>

namespace kelvo {

// Both functions grant `sid` access to a window station or a desktop: they add an explicit allow
// ACE to the object's DACL and return TRUE. The ACE is inserted at the index that canonical order
// requires (GetACEInsertionIndex in canonical_order.h). If GetACEInsertionIndex returns
// kNoAceIndex, the ACE is appended. When the DACL already has an equal ACE, or the object has no
// DACL, the functions return TRUE and change nothing. The handle needs READ_CONTROL and WRITE_DAC.
// When the DACL cannot be read, when the object has a DACL but the ACE cannot be created, or when
// the new DACL cannot be built or written, the functions trace the failure, return FALSE and leave
// the DACL unchanged.
//
// Both functions leak memory. Each call that can read the DACL allocates an ACE and never frees the
// ACE. If CalculateACLSize returns more than 1,008, the memory of the new DACL is not freed either.

// Grants STANDARD_RIGHTS_REQUIRED and WINSTA_ALL_ACCESS: mask 0x000F037F.
BOOL AllowAccessToWinSta(PSID sid, HWINSTA station);

// Grants STANDARD_RIGHTS_REQUIRED and all specific rights of a desktop (the constants that begin
// with DESKTOP_): mask 0x000F01FF.
BOOL AllowAccessToDesktop(PSID sid, HDESK desktop);

}  // namespace kelvo
