#pragma once

#include <windows.h>

namespace kelvo {

// The session that is attached to the machine's own screen and keyboard
// (WTSGetActiveConsoleSessionId, looked up at run time), 0xFFFFFFFF while sessions change there. 0
// below Windows XP and on a Windows without that function.
DWORD GetActiveConsoleSessionId();

// Stores the primary token of the user who is logged on to the session in `*token`, which the
// caller closes; needs the privilege "SeTcbPrivilege" (WTSQueryUserToken, looked up at run time).
// False, with null stored, when Windows gives none and below Windows XP.
bool QueryUserTokenOfSession(DWORD sessionId, HANDLE* token);

}  // namespace kelvo
