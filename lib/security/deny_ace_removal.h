#pragma once

#include <windows.h>

#include <accctrl.h>

namespace kelvo {

// Removes the deny entries (ACCESS_DENIED_ACE_TYPE and ACCESS_DENIED_OBJECT_ACE_TYPE) for one SID
// from an object's DACL, except one at index 0, and writes the DACL back (SetSecurityInfo), also
// when it held none. The handle needs READ_CONTROL and WRITE_DAC. An object without a DACL is left
// as it is.
//
// The SID is read after header and mask, so an object entry, which has its SID further on, is not
// found, and a callback entry is of another type. Returns TRUE when the DACL was written back; an
// entry that DeleteAce refuses to delete stays, and nothing tells. Returns FALSE, and traces why,
// when the DACL cannot be read or written, when it has no entries, and when a deny entry is too
// short for its SID; the object then keeps its DACL.
BOOL DeleteDenyACEofObject(PSID sid, HANDLE object, SE_OBJECT_TYPE type);

}  // namespace kelvo
