#pragma once

#include <windows.h>

namespace kelvo {

// Starts a program on the interactive desktop, "WinSta0\Default", with the given command line and a
// copy of this process's token. The caller may be on any desktop. Returns TRUE when the new process
// was started, otherwise FALSE. `commandLine` must be writable, because CreateProcessAsUserW may
// change it. If `wait` is TRUE, returns only after the new process has ended. When `process` is not
// null, `*process` receives the new process's handle, which the caller closes. On failure,
// `*process` is unchanged. For example:
//   wchar_t command[] = L"\"C:\\Program Files\\App\\app.exe\" /start";
//   OwnedKernelObject process;
//   const BOOL isStarted = RunAsUser(command, FALSE, process.Receive());
//
//   - If this process's window station is not "WinSta0" (the comparison is case-sensitive), this
//     process is moved to "WinSta0" to start the new process. This process is moved back before
//     the call waits or returns. In this case, the token's user also gets full access to "WinSta0"
//     and its desktop "Default" until the session ends (see AllowTokenFullAccessToObject in
//     lib/security/token_object_access.h).
//   - The call fails when EnablePrivilege (lib/security/process_privilege.h) fails for
//     SeTakeOwnershipPrivilege, for example because Windows does not know that privilege. The
//     call does not fail when this process merely lacks that privilege. The call also fails when
//     CreateProcessAsUserW requires SeAssignPrimaryTokenPrivilege for the copied token and this
//     process does not hold that privilege.
//   - The new process and its thread get a null DACL, which gives everyone full access to them. If
//     SYSTEM calls this function, this DACL does not protect the process, which runs as SYSTEM,
//     from any user of the computer. On Windows Vista and later, its integrity level is the only
//     protection.
//   - Begin the command line with a full path in quotation marks. Without the quotation marks,
//     Windows tries "C:\Program.exe" before "C:\Program Files\...".
//   - The following privileges, if this process holds them, are enabled and stay enabled until this
//     process exits: SeTakeOwnershipPrivilege, SeTcbPrivilege, SeChangeNotifyPrivilege,
//     SeIncreaseQuotaPrivilege, SeAssignPrimaryTokenPrivilege and SeCreateTokenPrivilege.
//   - The handle of the copied token stays open. If the call moves this process to "WinSta0", the
//     handles of this station and its desktop also stay open.
//   - Failures are traced (lib/trace/trace_sink.h). When memory runs out, the call returns FALSE
//     and throws nothing. A failure undoes neither the enabled privileges nor the access to
//     "WinSta0".
BOOL RunAsUser(wchar_t* commandLine, BOOL wait, HANDLE* process);

}  // namespace kelvo
