#pragma once

#include "lib/string/wstring.h"

namespace kelvo {

// The directories of Windows' own libraries. Each path ends in a separator (a backslash is added
// where Windows returns none) and is empty on failure. The names end in Path because windows.h
// defines GetSystemDirectory and GetSystemWow64Directory as macros.

// Returns the system directory (GetSystemDirectoryW), of at most 510 characters and the separator;
// empty when it is longer. The string is in a process-wide buffer. Every call overwrites it, and so
// do the operations of this library that look into the system directory.
const wchar_t* GetSystemDirectoryPath();

// Returns the directory of the 32-bit libraries on a 64-bit Windows (GetSystemWow64DirectoryW,
// looked up at run time), of at most 1,023 characters and the separator. Empty when Windows does
// not have the function.
WString GetSystemWow64DirectoryPath();

// Returns the system directory that 64-bit programs see, which in a 64-bit process is the path of
// GetSystemDirectoryPath; overwrites its buffer.
WString GetNativeSystemDirectoryPath();

}  // namespace kelvo
