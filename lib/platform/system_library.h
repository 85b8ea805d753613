#pragma once

#include "lib/platform/module.h"

namespace kelvo {

// Loads a Windows library by its full path in the system directory. The full path prevents Windows
// from loading a library of the same name from another folder. The LoadLibraryExW flag
// LOAD_LIBRARY_SEARCH_SYSTEM32 would also prevent this, but Windows 7 supports the flag only with
// update KB2533623. `name` is a file name, such as L"crypt32.dll". Returns null on failure;
// GetLastError then returns the error code.
OwnedModule LoadSystemLibrary(const wchar_t* name);

}  // namespace kelvo
