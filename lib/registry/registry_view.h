#pragma once

#include <windows.h>

namespace kelvo {

// Switches registry reflection of an open key on or off (RegEnableReflectionKey and
// RegDisableReflectionKey of "Advapi32.DLL", looked up at run time). True only when Windows has the
// function and it succeeded.
bool EnableRegistryReflection(HKEY key, bool enable);

// The bit to OR into a key's access mask for a view of the registry: KEY_WOW64_32KEY for view 1,
// KEY_WOW64_64KEY for view 2, 0 for every other number, which is the process's own view.
REGSAM GetRegistryViewAccess(int view);

}  // namespace kelvo
