#pragma once

#include <windows.h>

#include <accctrl.h>

namespace kelvo {

// Removes the deny ACEs (ACCESS_DENIED_ACE_TYPE) for `sid` from an object's DACL, but never the ACE
// at index 0. Writes the DACL back (SetSecurityInfo) even when no ACE was removed. The handle needs
// READ_CONTROL and WRITE_DAC. An object without a DACL is left unchanged. If `sid` is a group, the
// removal affects every member of the group. The change lasts as long as the object. For example,
// the window station "WinSta0" exists until its session ends.
//
// These ACEs are never removed:
//   - Callback ACEs.
//   - Object ACEs. The function compares `sid` with the bytes after an ACE's mask. In an object
//     ACE, these bytes are not a SID.
//   - An ACE for which DeleteAce fails. The failure is not traced.
//
// Returns TRUE when the DACL was written back or the object has no DACL. Returns FALSE, traces why
// and leaves the DACL unchanged in these cases:
//   - The DACL cannot be read, is malformed or cannot be written.
//   - The DACL has no ACEs.
//   - A deny ACE or an object deny ACE at index 1 or higher is too short: the bytes that the
//     function would compare with `sid` extend past the end of the ACE.
//   - An exception occurs, for example because `sid` cannot be read.
BOOL DeleteDenyACEofObject(PSID sid, HANDLE object, SE_OBJECT_TYPE type);

}  // namespace kelvo
