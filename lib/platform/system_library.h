#pragma once

#include "lib/platform/module.h"

namespace kelvo {

// Loads a Windows library by its full path in the system directory, so that no library of the same
// name in another folder is loaded instead. The search flags of LoadLibraryExW, such as
// LOAD_LIBRARY_SEARCH_SYSTEM32, would also prevent that, but Windows 7 supports these flags only
// with update KB2533623. `name` is a file name, such as L"crypt32.dll". Returns null on failure;
// GetLastError then returns the error code.
OwnedModule LoadSystemLibrary(const wchar_t* name);

}  // namespace kelvo
