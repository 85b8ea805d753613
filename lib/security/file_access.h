#pragma once

#include <windows.h>

namespace kelvo {

// Grants an account the rights in `accessMask` by adding an ACE to the DACL of a file or directory.
// `sid` is the account's SID in any form that ConvertStringSidToSidW accepts.
//   - The new ACE is inserted before the first inherited ACE, or at the end if none is inherited.
//     The account's other ACEs before the new ACE are removed, even deny ACEs. However, object
//     ACEs are kept. All remaining ACEs keep their order.
//   - A file without a DACL gets a DACL that contains only the new ACE.
//   - An auto-inherited DACL stays auto-inherited. A protected DACL that is not auto-inherited
//     stays protected. A DACL that is both protected and auto-inherited ("D:PAI") loses its
//     protection: the file can again inherit ACEs from its parent folder.
//   - Symbolic links and junctions in `path` are followed, so the DACL of another file may be
//     changed. (According to Windows' documentation, this does not apply to a symbolic link at the
//     end of `path`.) Use a path that no other user can redirect to another file.
//
// The caller needs READ_CONTROL and WRITE_DAC access to the file (GetFileSecurityW,
// SetFileSecurityW). The new DACL is set in one call. Returns TRUE when that call succeeds. On any
// failure, returns FALSE and leaves the file unchanged. Throws no exceptions.
//
// Except in the two cases below, a failure prints one line to the C runtime's standard output. The
// line contains the name of the call that failed and the last error. If the DACL is malformed, the
// line names GetAclInformation. A DACL is malformed when it extends past the end of the security
// descriptor, when AclSize is less than the size of an ACL header, when an ACE extends past the end
// of the DACL, or when an ACE is smaller than an ACE_HEADER. Nothing is printed in these cases:
//   - `sid` is null, or ConvertStringSidToSidW fails.
//   - The file has no security descriptor. The call of GetFileSecurityW that asks for the
//     descriptor's size then succeeds, so there is no error to print.
//
//   // Members of the Users group may read the file.
//   const BOOL isAllowed =
//       AddFileAccessRights(L"C:\\App\\log.txt", L"S-1-5-32-545", FILE_GENERIC_READ);
BOOL AddFileAccessRights(const wchar_t* path, const wchar_t* sid, DWORD accessMask);

}  // namespace kelvo
