#pragma once

#include <windows.h>

namespace kelvo {

// Starts a program for the user of the console session (the session on the physical screen). The
// caller may be a service in another session. Returns true when the process was created. The
// command line is the path in double quotes, a space and the unchanged arguments; null strings
// count as empty. Give a full path.
//   - On Windows XP and later, the program runs in that user's session and account
//     (CreateProcessAsUserW). When nobody is logged on there, or Windows refuses the user's token
//     (for what that needs, see QueryUserTokenOfSession in lib/process/user_session.h), it runs in
//     the caller's session and account instead (CreateProcessW).
//   - On Windows 2000, it always runs in the caller's account: through RunAsUser
//     (lib/process/run_as_user.h) when the caller is in the console session but not on the
//     interactive desktop, otherwise in the caller's session.
//   - The program inherits the environment and the current directory, but no handles. The
//     environment reaches the user's program: put no secret there.
//   - A service must not let the program run in the service's account: call QueryUserTokenOfSession
//     first.
//
// With `wait`, returns only after the program has ended. When `processHandle` is not null, it
// receives the process's handle, which the caller closes; it is unchanged on failure:
//   OwnedKernelObject process;
//   LaunchInUserSession(L"C:\\App\\app.exe", L"/start", true, process.Receive());
//   const BOOL hasEnded = GetExitCodeProcess(process.get(), &exitCode);
bool LaunchInUserSession(const wchar_t* exePath, const wchar_t* arguments, bool wait,
                         HANDLE* processHandle);

}  // namespace kelvo
