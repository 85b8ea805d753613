#pragma once

#include <windows.h>

namespace kelvo {

// Grants an account the rights in `accessMask` by adding an ACE to the DACL of a file or directory.
// `sid` is the account's SID in any form that ConvertStringSidToSidW accepts.
//   - The new ACE is inserted before the first inherited ACE, or at the end if none is inherited.
//     The account's old ACEs before this place are dropped, including deny ACEs. All other ACEs
//     stay, in their order.
//   - A file without a DACL gets a DACL that contains only the new ACE.
//   - An auto-inherited DACL stays auto-inherited. A protected DACL stays protected, unless it is
//     also auto-inherited ("D:PAI"): it then loses its protection and inherits the ACEs of the
//     file's folder.
//   - A link is followed: use a path that no other account can redirect to another file.
//
// Needs READ_CONTROL and WRITE_DAC (GetFileSecurityW, SetFileSecurityW). Returns TRUE when the new
// DACL was set, which is done in one call. On failure, returns FALSE and leaves the file unchanged.
// Throws nothing. Except in the two cases below, a failure prints one line to the C runtime's
// standard output: the name of the call that failed and the last error. If the DACL extends past
// its descriptor, or an ACE past the DACL, the line names GetAclInformation. Nothing is printed in
// these cases:
//   - `sid` is null or invalid.
//   - The file has no descriptor. GetFileSecurityW then succeeds when it is asked for the size, so
//     there is no error to print.
//
//   // Members of the Users group may read the file.
//   const BOOL isAllowed =
//       AddFileAccessRights(L"C:\\App\\log.txt", L"S-1-5-32-545", FILE_GENERIC_READ);
BOOL AddFileAccessRights(const wchar_t* path, const wchar_t* sid, DWORD accessMask);

}  // namespace kelvo
