#pragma once

#include "lib/platform/module.h"

namespace kelvo {

// Loads one of Windows' own libraries by its full path in the system directory, so that no library
// of that name in another folder is taken for it. Unlike search flags, that works on every Windows
// 7. `name` is a file name, such as L"crypt32.dll". Returns null when that fails; GetLastError then
// says why.
OwnedModule LoadSystemLibrary(const wchar_t* name);

}  // namespace kelvo
