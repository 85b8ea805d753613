#pragma once

#include <windows.h>

namespace kelvo {

// Starts a command line with a copy of this process's own token on the interactive desktop,
// "WinSta0\Default", whatever desktop the caller is on, and returns whether it was started.
// `commandLine` must be writable (CreateProcessAsUserW). With `wait`, returns only when the new
// process has ended. `process` may be null; otherwise it receives the new process's handle, which
// the caller closes, and is unchanged on failure:
//   wchar_t command[] = L"\"C:\\Program Files\\App\\app.exe\" /start";
//   OwnedKernelObject process;
//   const BOOL isStarted = RunAsUser(command, FALSE, process.Receive());
//
// When this process is not on "WinSta0" (in exactly this letter case), it is moved there for the
// duration of the call, and the token's user gets full access to the station and its desktop for
// good (AllowTokenFullAccessToObject). Needs a Windows that knows SeTakeOwnershipPrivilege, and
// SeAssignPrimaryTokenPrivilege unless the token may be assigned without it. The new process and
// its thread get a null DACL: everyone has full access, so called as SYSTEM this gives every user
// of the computer a process with SYSTEM's rights. Put a full path in quotation marks first in the
// command line, or Windows tries "C:\Program.exe" for "C:\Program Files\...". Enables, for the rest
// of this process's life, those that it holds of SeTakeOwnershipPrivilege, SeTcbPrivilege,
// SeChangeNotifyPrivilege, SeIncreaseQuotaPrivilege, SeAssignPrimaryTokenPrivilege and
// SeCreateTokenPrivilege. Leaves open the token, and the station and desktop that it opened.
// Failures are traced (lib/trace/trace_sink.h).
BOOL RunAsUser(wchar_t* commandLine, BOOL wait, HANDLE* process);

}  // namespace kelvo
