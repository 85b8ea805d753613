#pragma once

#include <windows.h>

namespace kelvo {

// Grants `sid` access to a window object by adding an explicit allow ACE in canonical position to
// its DACL. Returns TRUE, changing nothing, when an equal ACE exists or the object has no DACL. The
// handle needs READ_CONTROL and WRITE_DAC. Returns FALSE, and traces why, when the DACL cannot be
// read, rebuilt or written; the object then keeps its DACL. Each call leaves the memory of one
// entry allocated, and that of a list beyond 1,008 bytes.

// STANDARD_RIGHTS_REQUIRED and all rights of window stations: mask 0x000F037F.
BOOL AllowAccessToWinSta(PSID sid, HWINSTA station);

// STANDARD_RIGHTS_REQUIRED and all rights of desktops: mask 0x000F01FF.
BOOL AllowAccessToDesktop(PSID sid, HDESK desktop);

}  // namespace kelvo
