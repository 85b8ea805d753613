#pragma once

#include <windows.h>

namespace kelvo {

// Adds an entry that allows `accessMask` to the DACL of a file or directory, for the account whose
// SID is given in any form that ConvertStringSidToSidW accepts. The new DACL has the explicit
// entries of other accounts, then the new entry, then everything from the first inherited entry on;
// explicit entries of the account, denying ones too, are dropped. A file without a DACL gets one
// with this entry alone. A protected list stays protected and an auto-inherited one auto-inherited;
// one that is both ("D:PAI") becomes auto-inherited only, and so takes its folder's entries. A link
// is followed: use a path that no other account can redirect.
//
// Needs the rights READ_CONTROL and WRITE_DAC (GetFileSecurityW, SetFileSecurityW). Returns TRUE
// when the file has its new list, which is set in one call. Otherwise returns FALSE, leaves the
// file as it was, and prints one line to the C runtime's standard output: the call that failed and
// its last error. A list that reaches past its descriptor, or an entry past its list, counts as a
// failed GetAclInformation. Nothing is printed for a null or invalid SID, nor for a file without a
// descriptor, whose size GetFileSecurityW reports without an error. Throws nothing.
//   // All users may read the file.
//   const BOOL isAllowed =
//       AddFileAccessRights(L"C:\\App\\log.txt", L"S-1-5-32-545", FILE_GENERIC_READ);
BOOL AddFileAccessRights(const wchar_t* path, const wchar_t* sid, DWORD accessMask);

}  // namespace kelvo
