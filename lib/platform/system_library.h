#pragma once

#include "lib/platform/module.h"

namespace kelvo {

// Loads a Windows library by its full path in the system directory, so that no library of the same
// name in another folder is loaded instead. Unlike the search flags of LoadLibraryExW, this works
// on every Windows 7. `name` is a file name, such as L"crypt32.dll". Returns null on failure;
// GetLastError then says why.
OwnedModule LoadSystemLibrary(const wchar_t* name);

}  // namespace kelvo
