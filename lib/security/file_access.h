#pragma once

#include <windows.h>

namespace kelvo {

// Adds an ACE to the DACL of a file or directory that grants an account `accessMask`. `sid` is the
// account's SID in any form that ConvertStringSidToSidW accepts.
//   - The new DACL has the explicit ACEs of other accounts, then the new ACE, then everything from
//     the first inherited ACE on. Explicit ACEs of the account, including deny ACEs, are dropped.
//   - A file without a DACL gets one with this ACE alone.
//   - A protected DACL stays protected, and an auto-inherited one auto-inherited. One that is both
//     ("D:PAI") becomes only auto-inherited, and so takes its folder's ACEs.
//   - A link is followed: use a path that no other account can redirect.
//
// Needs READ_CONTROL and WRITE_DAC (GetFileSecurityW, SetFileSecurityW). Returns TRUE when the file
// has its new DACL, which is set in one call. Otherwise returns FALSE, leaves the file unchanged,
// and prints one line to the C runtime's standard output: the call that failed and its last error.
// A DACL that extends past its descriptor, or an ACE past its DACL, counts as a failed
// GetAclInformation. Prints nothing for a null or invalid SID. Nor does it for a file without a
// descriptor: there, GetFileSecurityW succeeds when asked for the size, so there is no error to
// print. Throws nothing.
//   // All users may read the file.
//   const BOOL isAllowed =
//       AddFileAccessRights(L"C:\\App\\log.txt", L"S-1-5-32-545", FILE_GENERIC_READ);
BOOL AddFileAccessRights(const wchar_t* path, const wchar_t* sid, DWORD accessMask);

}  // namespace kelvo
