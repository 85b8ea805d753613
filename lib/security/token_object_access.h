#pragma once

#include <windows.h>

#include <accctrl.h>

namespace kelvo {

// Gives a token's user full access to a window station or a desktop. First removes deny ACEs for
// the user and for each of the token's groups (DeleteDenyACEofObject). Then grants the user the
// rights to the object: calls AllowAccessToDesktop if `typeName` contains "desk" in any letter
// case, and AllowAccessToWinSta otherwise. A null `typeName` counts as empty. The granted rights
// always include WRITE_DAC and WRITE_OWNER. Removing a group's deny ACEs affects every member of
// that group, but only the user gets the rights. The changes last as long as the object exists.
// Windows deletes a window station and its desktops no later than the end of the session. The token
// handle needs TOKEN_QUERY. The object handle needs READ_CONTROL and WRITE_DAC.
//
// When a step fails, returns FALSE, traces the reason and does not undo the earlier steps. For
// example, a `type` other than SE_WINDOW_OBJECT is refused only after deny ACEs have been removed.
// If the token or the object is null, returns FALSE and traces nothing.
BOOL AllowTokenFullAccessToObject(HANDLE token, HANDLE object, SE_OBJECT_TYPE type,
                                  const wchar_t* typeName);

}  // namespace kelvo
