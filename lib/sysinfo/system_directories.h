#pragma once

#include "lib/string/wstring.h"

namespace kelvo {

// These functions return directories that contain Windows' own libraries. Each path ends in a
// separator: when the path that Windows returns has no separator at its end, a backslash is added.
// On failure, the path is empty. The functions' names end in Path because windows.h defines
// GetSystemDirectory and GetSystemWow64Directory as macros.

// Returns the system directory (GetSystemDirectoryW). The path is empty when the path from Windows
// has more than 510 characters. The string is in a process-wide buffer. Every call of this function
// overwrites the buffer. Some other functions of this library, for example
// GetSystemFileVersionString, call this function and therefore overwrite the buffer too.
const wchar_t* GetSystemDirectoryPath();

// Returns the directory of the 32-bit libraries on 64-bit Windows (GetSystemWow64DirectoryW, looked
// up at run time). The path is empty when the path from Windows has more than 1,023 characters, or
// when Windows lacks GetSystemWow64DirectoryW.
WString GetSystemWow64DirectoryPath();

// Returns the system directory that 64-bit programs see. A 64-bit process gets the same path from
// GetSystemDirectoryPath. Overwrites the buffer of GetSystemDirectoryPath.
WString GetNativeSystemDirectoryPath();

}  // namespace kelvo
