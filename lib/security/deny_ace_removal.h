#pragma once

#include <windows.h>

#include <accctrl.h>

namespace kelvo {

// Removes the deny ACEs (ACCESS_DENIED_ACE_TYPE) for one SID from an object's DACL, except one at
// index 0, and writes the DACL back (SetSecurityInfo), even when there were none. The handle needs
// READ_CONTROL and WRITE_DAC. An object without a DACL is left unchanged. For a group's SID, all
// of its members are no longer denied. This lasts until the object is deleted: for a window
// station, when its session ends.
//
// Object ACEs stay, because the SID is expected right after the mask, where they have other data.
// Callback ACEs stay too. So does an ACE that DeleteAce refuses to delete, which is not traced.
// Returns TRUE when the DACL was written back or there is none. Returns FALSE, traces why and
// leaves the DACL unchanged in these cases:
//   - The DACL cannot be read or written.
//   - It has no ACEs.
//   - A deny ACE, object ACEs included, is too short for its SID.
BOOL DeleteDenyACEofObject(PSID sid, HANDLE object, SE_OBJECT_TYPE type);

}  // namespace kelvo
