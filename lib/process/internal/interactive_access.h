#pragma once

#include <windows.h>

namespace kelvo::internal {

// Assigns the window station "WinSta0" to this process and gives the token's user full access to it
// and to its desktop "Default" (SetProcessWindowStation, AllowTokenFullAccessToObject). The thread
// keeps its desktop. Both handles stay open by design. Returns false and traces why when a step
// fails; the process may then already be on "WinSta0".
bool MoveToInteractiveStation(HANDLE token);

}  // namespace kelvo::internal
