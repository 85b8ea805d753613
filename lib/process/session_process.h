#pragma once

#include <windows.h>

namespace kelvo {

// Starts a program on the desktop of the user who sits at the machine's own screen, also from a
// service in another session, and returns true when the process was created. The command line is
// the path in double quotes, a blank and the arguments as they stand; null counts as empty.
//
// From Windows XP on the program runs under the account of that user (CreateProcessAsUserW), or
// under the caller's own (CreateProcessW) when there is no user or Windows refuses the user's
// token: QueryUserTokenOfSession says what that needs. On Windows 2000 in the console session it
// runs under the caller's account, through RunAsUser when the caller is not on the interactive
// desktop. Handles are not inherited, environment and current directory are.
//
// `wait` returns only after the program has ended. The process's handle is stored in
// `*processHandle`, when that is not null, for the caller to close; on failure it is left alone.
bool LaunchInUserSession(const wchar_t* exePath, const wchar_t* arguments, bool wait,
                         HANDLE* processHandle);

}  // namespace kelvo
