#pragma once

#include <windows.h>

namespace kelvo {

// Starts a command line with this process's own primary token on the interactive desktop,
// "WinSta0\Default", whatever desktop the caller is on, and returns whether it was started.
// `commandLine` must be writable (CreateProcessAsUserW). With `wait`, returns only when the new
// process has ended. `process` may be null; otherwise it receives the new process's handle, which
// the caller closes, and is unchanged on failure.
//
// When this process is not on "WinSta0" (by its exact letter case), it is moved there for the
// duration of the call, and the DACLs of station and desktop open to the token's user for good.
// Needs SeTakeOwnershipPrivilege to be named on the system and SeAssignPrimaryTokenPrivilege or a
// token that may be assigned. The new process and its thread get a null DACL: everyone has full
// access. Leaves enabled, for the rest of this process, what it holds of SeTakeOwnershipPrivilege,
// SeTcbPrivilege, SeChangeNotifyPrivilege, SeIncreaseQuotaPrivilege, SeAssignPrimaryTokenPrivilege
// and SeCreateTokenPrivilege. Leaves open: the token, and the handles of station and desktop that
// were opened. Failures are traced.
BOOL RunAsUser(wchar_t* commandLine, BOOL wait, HANDLE* process);

}  // namespace kelvo
