#pragma once

#include "lib/string/wstring.h"

namespace kelvo {

// Limits the process's DLL search path to the program's own folder and the system directory
// (SetDefaultDllDirectories), so that no DLL planted in the current folder or in a folder on PATH
// runs with administrative rights. When SetDefaultDllDirectories fails, or is missing as on
// Windows 7 without update KB2533623, only removes the current folder from the DLL search path
// (SetDllDirectoryW).
void NarrowLibrarySearch();

// Returns the full path of the DLL `name`: in the program's own folder if the file exists there,
// otherwise in the system directory. In the second case, overwrites the buffer of
// GetSystemDirectoryPath (lib/sysinfo/system_directories.h). If that function fails, returns
// `name`.
WString LibraryPath(const wchar_t* name);

}  // namespace kelvo
