#pragma once

#include <windows.h>

namespace kelvo::internal {

// Moves this process to the window station "WinSta0" (SetProcessWindowStation). Gives the token's
// user full access to this station and to its desktop "Default" (AllowTokenFullAccessToObject). The
// calling thread stays on its current desktop. After the move, the handles of the station and of
// the desktop stay open by design. When a step fails, traces the failure and returns false. The
// process may then already be on "WinSta0".
bool MoveToInteractiveStation(HANDLE token);

}  // namespace kelvo::internal
