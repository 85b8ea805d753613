#pragma once

#include <windows.h>

#include <accctrl.h>

namespace kelvo {

// Opens a window station or a desktop to a token's user: the deny entries for the user and for each
// of the token's groups go (DeleteDenyACEofObject), then the user is granted the rights of a
// desktop (AllowAccessToDesktop) when the type name has "desk" in it, in whatever letter case, else
// those of a window station (AllowAccessToWinSta); a null name counts as empty. The token needs
// TOKEN_QUERY, the handle READ_CONTROL and WRITE_DAC.
//
// Returns FALSE when a step fails, which is traced and keeps what the steps before it did: an
// object type other than SE_WINDOW_OBJECT is refused only after the deny entries are gone. A null
// token or object is answered FALSE without a trace.
BOOL AllowTokenFullAccessToObject(HANDLE token, HANDLE object, SE_OBJECT_TYPE type,
                                  const wchar_t* typeName);

}  // namespace kelvo
