#pragma once

#include <windows.h>

namespace kelvo {

// Returns the identifier of the console session, which is the session attached to the physical
// screen and keyboard (WTSGetActiveConsoleSessionId, looked up at run time). When no session is
// attached, for example while a session is being attached or detached, returns 0xFFFFFFFF. Returns
// 0 on Windows versions before XP and when Windows lacks WTSGetActiveConsoleSessionId.
DWORD GetActiveConsoleSessionId();

// Stores in `*token` the primary token of the user who is logged on to the session
// (WTSQueryUserToken, looked up at run time). The caller closes the token. The calling process
// needs the privilege "SeTcbPrivilege". When WTSQueryUserToken fails or is missing, and on Windows
// versions before XP, stores null and returns false.
bool QueryUserTokenOfSession(DWORD sessionId, HANDLE* token);

}  // namespace kelvo
