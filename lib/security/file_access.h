#pragma once

#include <windows.h>

namespace kelvo {

// Gives an account, named by its SID in any form that ConvertStringSidToSidW takes, an entry in the
// DACL of a file or directory that allows `accessMask`. The entry takes the place of all explicit
// ones of that account, denying ones too; ReplaceAcesOfAccount tells the order. A file without a
// DACL gets one with this entry alone. A list that is protected or auto-inherited stays so.
//
// Needs the rights READ_CONTROL and WRITE_DAC (GetFileSecurityW, SetFileSecurityW). Returns TRUE
// when the file has its new list, which is put in place in one step; FALSE leaves the file as it
// was. The call that failed is named, with its last error, in one line on the C runtime's standard
// output; a list whose entries do not lie inside it counts as a failed GetAclInformation. A text
// that is no SID, or null, says nothing there.
BOOL AddFileAccessRights(const wchar_t* path, const wchar_t* sid, DWORD accessMask);

}  // namespace kelvo
