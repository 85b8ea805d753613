#pragma once

#include <windows.h>

#include <accctrl.h>

namespace kelvo {

// Removes the deny entries (ACCESS_DENIED_ACE_TYPE) for one SID from an object's DACL, except one
// at index 0, and writes the DACL back (SetSecurityInfo), even when it held none. The handle needs
// READ_CONTROL and WRITE_DAC. An object without a DACL is left as it is. For a group's SID the
// denial ends for all of its members, until the object is deleted: a station with its session.
//
// Object entries stay, since their SID is looked for right after the mask, where they hold other
// data; so do callback entries. Returns TRUE when the DACL was written back or there is none; an
// entry that DeleteAce refuses to delete stays, without a trace. Returns FALSE, and traces why,
// when the DACL cannot be read or written, when it has no entries, and when a deny entry, object
// entries included, is too short for its SID; the object then keeps its DACL.
BOOL DeleteDenyACEofObject(PSID sid, HANDLE object, SE_OBJECT_TYPE type);

}  // namespace kelvo
