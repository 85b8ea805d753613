#pragma once

#include <windows.h>

#include <accctrl.h>

namespace kelvo {

// Removes the deny ACEs (ACCESS_DENIED_ACE_TYPE) for `sid` from an object's DACL, but never the ACE
// at index 0. Writes the DACL back (SetSecurityInfo) even when no ACE was removed. The handle needs
// READ_CONTROL and WRITE_DAC. An object without a DACL is left unchanged. If `sid` is a group, the
// removal affects every member of the group. The change lasts until the object is deleted: for
// "WinSta0", until its session ends.
//
// Object ACEs stay: the bytes after the mask are compared with `sid`, and an object ACE has other
// data there.
// Callback ACEs stay too. If DeleteAce fails for an ACE, that ACE also stays; the failure is not
// traced. Returns TRUE when the DACL was written back or the object has no DACL. Returns FALSE,
// traces why and leaves the DACL unchanged in these cases:
//   - The DACL cannot be read or written.
//   - The DACL has no ACEs.
//   - After index 0, a deny ACE or an object deny ACE is too short for the SID that is read there.
BOOL DeleteDenyACEofObject(PSID sid, HANDLE object, SE_OBJECT_TYPE type);

}  // namespace kelvo
