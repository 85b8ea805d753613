#pragma once

#include <windows.h>

namespace kelvo {

// Starts a command line with a copy of this process's own token on the interactive desktop,
// "WinSta0\Default", whatever desktop the caller is on, and returns whether it was started.
// `commandLine` must be writable (CreateProcessAsUserW). With `wait`, returns only after the new
// process has ended. `process` may be null; otherwise it receives the new process's handle, which
// the caller closes, and is unchanged on failure:
//   wchar_t command[] = L"\"C:\\Program Files\\App\\app.exe\" /start";
//   OwnedKernelObject process;
//   const BOOL isStarted = RunAsUser(command, FALSE, process.Receive());
//
//   - A process that is not on "WinSta0" (case-sensitive) is moved there for the duration of the
//     call, and the token's user gets full access to the station and its desktop until the session
//     ends (AllowTokenFullAccessToObject).
//   - Windows must support SeTakeOwnershipPrivilege. The caller needs
//     SeAssignPrimaryTokenPrivilege, unless the token may be assigned without it.
//   - The new process and its thread get a null DACL, so everyone has full access: called as
//     SYSTEM, this gives every user of the computer a process with SYSTEM's rights.
//   - Begin the command line with a full path in quotation marks, or Windows tries "C:\Program.exe"
//     for "C:\Program Files\...".
//   - Enables the following privileges, as far as this process holds them. They stay enabled until
//     the process exits: SeTakeOwnershipPrivilege, SeTcbPrivilege, SeChangeNotifyPrivilege,
//     SeIncreaseQuotaPrivilege, SeAssignPrimaryTokenPrivilege and SeCreateTokenPrivilege.
//   - Leaves open the token, and the station and desktop that it opened.
//   - Traces failures (lib/trace/trace_sink.h).
BOOL RunAsUser(wchar_t* commandLine, BOOL wait, HANDLE* process);

}  // namespace kelvo
