#pragma once

#include "lib/string/wstring.h"

namespace kelvo {

// Narrows the process's search for libraries to the program's own folder and the system directory
// (SetDefaultDllDirectories), so that no library planted in the current folder or on PATH runs with
// administrative rights. When SetDefaultDllDirectories fails or is missing, as on Windows 7 without
// update KB2533623, only removes the current folder from the search (SetDllDirectoryW).
void NarrowLibrarySearch();

// Returns the full path of a library: in the program's own folder if the file exists there,
// otherwise in the system directory. In the second case, overwrites the buffer of
// GetSystemDirectoryPath.
WString LibraryPath(const wchar_t* name);

}  // namespace kelvo
