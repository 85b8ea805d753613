#pragma once

#include <windows.h>

namespace kelvo {

// Starts a program for the user of the console session (the session on the physical screen). The
// caller may be a service in another session. Returns true when the process was created. The
// command line consists of `exePath` in double quotes, followed by a space and the unchanged
// `arguments`. Null strings count as empty. `exePath` should be a full path.
//   - On Windows XP and later, the program runs in the console session, under the account of that
//     session's user. It is started by CreateProcessAsUserW with the token from
//     QueryUserTokenOfSession (lib/process/user_session.h). When QueryUserTokenOfSession fails, the
//     program instead runs in the caller's session, under the caller's account (CreateProcessW).
//     QueryUserTokenOfSession fails, for example, when nobody is logged on to the session, or when
//     the caller lacks the privilege that QueryUserTokenOfSession needs.
//   - On Windows 2000, the program always runs in the caller's session, under the caller's account.
//     When the caller is in the console session but not on the interactive desktop, RunAsUser
//     (lib/process/run_as_user.h) starts the program. Otherwise, CreateProcessW starts it.
//   - The program inherits the caller's environment and current directory, but no handles. Do not
//     keep secrets in the caller's environment, because the program can read them there.
//   - Before a service calls LaunchInUserSession, it must call QueryUserTokenOfSession for the
//     console session (GetActiveConsoleSessionId). If QueryUserTokenOfSession fails, the service
//     must not call LaunchInUserSession, because the program would run under the service's account.
//
// With `wait`, returns only after the program has ended. When `processHandle` is not null,
// `*processHandle` receives the process's handle, which the caller closes. On failure,
// `*processHandle` is unchanged. For example:
//   OwnedKernelObject process;
//   LaunchInUserSession(L"C:\\App\\app.exe", L"/start", true, process.Receive());
//   const BOOL hasExitCode = GetExitCodeProcess(process.get(), &exitCode);
bool LaunchInUserSession(const wchar_t* exePath, const wchar_t* arguments, bool wait,
                         HANDLE* processHandle);

}  // namespace kelvo
