#pragma once

#include <windows.h>

namespace kelvo {

// Returns the session that is attached to the machine's own screen and keyboard
// (WTSGetActiveConsoleSessionId, looked up at run time), or 0xFFFFFFFF while another is being
// attached. Returns 0 before Windows XP and on a Windows without that function.
DWORD GetActiveConsoleSessionId();

// Stores the primary token of the user who is logged on to the session in `*token`, which the
// caller closes; needs the privilege "SeTcbPrivilege" (WTSQueryUserToken, looked up at run time).
// Returns false, and stores null, when Windows refuses it and before Windows XP.
bool QueryUserTokenOfSession(DWORD sessionId, HANDLE* token);

}  // namespace kelvo
