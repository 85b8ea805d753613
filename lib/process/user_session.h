#pragma once

#include <windows.h>

namespace kelvo {

// Returns the identifier of the console session, the one attached to the physical screen and
// keyboard (WTSGetActiveConsoleSessionId, looked up at run time), or 0xFFFFFFFF while another is
// being attached. Returns 0 before Windows XP and on a Windows without that function.
DWORD GetActiveConsoleSessionId();

// Stores the primary token of the user who is logged on to the session in `*token`, which the
// caller closes (WTSQueryUserToken, looked up at run time). Needs the privilege "SeTcbPrivilege".
// Returns false and stores null when Windows refuses the token, and before Windows XP.
bool QueryUserTokenOfSession(DWORD sessionId, HANDLE* token);

}  // namespace kelvo
