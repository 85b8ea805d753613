#pragma once

#include <windows.h>

namespace kelvo {

// Starts a program for the user of the console session (the session on the physical screen). The
// caller may be a service in another session. Returns true when the process was created. The
// command line consists of `exePath` in double quotes, followed by a space and the unchanged
// `arguments`. Null strings count as empty. `exePath` should be a full path.
//   - On Windows XP and later, the program runs in that user's session, under that user's account
//     (CreateProcessAsUserW). When nobody is logged on to the session or Windows refuses the user's
//     token, the program instead runs in the caller's session, under the caller's account
//     (CreateProcessW). For the privilege that is needed to get the token, see
//     QueryUserTokenOfSession (lib/process/user_session.h).
//   - On Windows 2000, the program always runs in the caller's session, under the caller's account.
//     It is started by RunAsUser (lib/process/run_as_user.h) when the caller is in the console
//     session but not on the interactive desktop, and by CreateProcessW otherwise.
//   - The program inherits the caller's environment and current directory, but no handles. Do not
//     keep secrets in the caller's environment, because the program can read them there.
//   - A service must not start the program under the service's own account. It must therefore call
//     QueryUserTokenOfSession first. If QueryUserTokenOfSession fails, the service must not call
//     this function, because the program would run under the service's account.
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
