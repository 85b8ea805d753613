#pragma once

#include <windows.h>

#include <accctrl.h>

namespace kelvo {

// Takes the deny entries (ACCESS_DENIED_ACE_TYPE and ACCESS_DENIED_OBJECT_ACE_TYPE) for one SID out
// of an object's DACL, all but one at index 0; writes the DACL back also when it held none. The
// handle needs READ_CONTROL and WRITE_DAC. An object without a DACL is left as it is.
//
// Returns TRUE when the object denies the SID nothing more (index 0 aside). Returns FALSE, and
// traces why, when the DACL cannot be read or written, when it has no entries, and when a deny
// entry is too short for its SID; the object then keeps its DACL.
BOOL DeleteDenyACEofObject(PSID sid, HANDLE object, SE_OBJECT_TYPE type);

}  // namespace kelvo
