#pragma once

#include <windows.h>

namespace kelvo::internal {

// Makes "WinSta0" this process's window station and gives the token's user full access to it and to
// its desktop "Default" (AllowTokenFullAccessToObject). The thread keeps its desktop. Both handles
// stay open, by design. Returns false when a step fails, which is traced; the process may then be
// on "WinSta0" already.
bool MoveToInteractiveStation(HANDLE token);

}  // namespace kelvo::internal
