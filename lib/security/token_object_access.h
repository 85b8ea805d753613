#pragma once

#include <windows.h>

#include <accctrl.h>

namespace kelvo {

// Gives a token's user full access to a window station or a desktop. Removes the deny entries for
// the user and for each of the token's groups (DeleteDenyACEofObject), then grants the user the
// rights of a desktop (AllowAccessToDesktop) when the type name contains "desk" in any letter case,
// else those of a window station (AllowAccessToWinSta); WRITE_DAC and WRITE_OWNER are among both.
// All of this holds for every member of those groups, and until the session ends. A null name
// counts as empty. The token needs TOKEN_QUERY, the handle READ_CONTROL and WRITE_DAC.
//
// Returns FALSE, and traces why, when a step fails; what earlier steps did stays done: an object
// type other than SE_WINDOW_OBJECT is refused only after the deny entries are removed. Returns
// FALSE without a trace for a null token or object.
BOOL AllowTokenFullAccessToObject(HANDLE token, HANDLE object, SE_OBJECT_TYPE type,
                                  const wchar_t* typeName);

}  // namespace kelvo
