#pragma once

#include <windows.h>

namespace kelvo {

// Both functions grant `sid` access to a window object by adding an explicit allow ACE to the
// object's DACL, at the ACE's place in canonical order. They return TRUE and change nothing when
// the DACL already has an equal ACE or the object has no DACL. The handle needs READ_CONTROL and
// WRITE_DAC. When the DACL cannot be read, rebuilt or written, they return FALSE, trace why and
// leave the DACL unchanged. Each call that reads the DACL leaves the memory of one ACE allocated.
// If the new DACL has more than 1,008 bytes, its memory stays allocated too.

// Grants STANDARD_RIGHTS_REQUIRED and all rights of window stations: mask 0x000F037F.
BOOL AllowAccessToWinSta(PSID sid, HWINSTA station);

// Grants STANDARD_RIGHTS_REQUIRED and all rights of desktops: mask 0x000F01FF.
BOOL AllowAccessToDesktop(PSID sid, HDESK desktop);

}  // namespace kelvo
