#pragma once

#include <windows.h>

namespace kelvo {

// Gives an account, named by its SID in any form that ConvertStringSidToSidW takes, an entry in the
// DACL of a file or directory that allows `accessMask`. The new DACL has the explicit entries of
// other accounts, then the new entry, then everything from the first inherited entry on; explicit
// entries of the account, denying ones too, are dropped. A file without a DACL gets one with this
// entry alone. A protected list stays protected and an auto-inherited one auto-inherited; one that
// is both becomes auto-inherited only.
//
// Needs the rights READ_CONTROL and WRITE_DAC (GetFileSecurityW, SetFileSecurityW). Returns TRUE
// when the file has its new list, which is put in place in one step; FALSE leaves the file as it
// was. The call that failed is named, with its last error, in one line on the C runtime's standard
// output; a list that reaches past its descriptor, or an entry past its list, counts as a failed
// GetAclInformation. Nothing is printed for a null or wrong SID, and where asking for the size of
// the descriptor succeeds, as it does for a file without one. No exception leaves.
BOOL AddFileAccessRights(const wchar_t* path, const wchar_t* sid, DWORD accessMask);

}  // namespace kelvo
