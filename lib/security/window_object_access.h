#pragma once

#include <windows.h>

namespace kelvo {

// Both functions grant `sid` access to a window object by adding an explicit allow ACE to its DACL,
// in canonical order. They return TRUE and change nothing when an equal ACE exists or the object
// has no DACL. The handle needs READ_CONTROL and WRITE_DAC. They return FALSE, trace why and leave
// the DACL unchanged when it cannot be read, rebuilt or written. Each call leaves the memory of one
// ACE allocated, and that of a new DACL of more than 1,008 bytes.

// STANDARD_RIGHTS_REQUIRED and all rights of window stations: mask 0x000F037F.
BOOL AllowAccessToWinSta(PSID sid, HWINSTA station);

// STANDARD_RIGHTS_REQUIRED and all rights of desktops: mask 0x000F01FF.
BOOL AllowAccessToDesktop(PSID sid, HDESK desktop);

}  // namespace kelvo
