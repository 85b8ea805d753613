#pragma once

#include <windows.h>

namespace kelvo {

// Turns registry reflection on or off for an open key (RegEnableReflectionKey and
// RegDisableReflectionKey of "Advapi32.DLL", looked up at run time). Returns true when Windows has
// the needed function and the call succeeds.
bool EnableRegistryReflection(HKEY key, bool enable);

// Returns the access flag for a registry view:
//   - KEY_WOW64_32KEY when `view` is 1
//   - KEY_WOW64_64KEY when `view` is 2
//   - 0, the process's default view, when `view` is any other number
REGSAM GetRegistryViewAccess(int view);

}  // namespace kelvo
