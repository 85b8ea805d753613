#pragma once

#include "lib/string/wstring.h"

namespace kelvo {

// These functions return directories that contain Windows' own libraries. Each path ends in a
// separator: a backslash is added when Windows returns a path without one. On failure, the path is
// empty. The functions' names end in Path because windows.h defines GetSystemDirectory and
// GetSystemWow64Directory as macros.

// Returns the system directory (GetSystemDirectoryW), at most 510 characters and the separator;
// empty when it is longer. The string is in a process-wide buffer, which is overwritten by every
// call and by the functions of this library that use the system directory.
const wchar_t* GetSystemDirectoryPath();

// Returns the directory of the 32-bit libraries on 64-bit Windows (GetSystemWow64DirectoryW, looked
// up at run time), at most 1,023 characters and the separator. Empty when Windows lacks the
// function.
WString GetSystemWow64DirectoryPath();

// Returns the system directory that 64-bit programs see. In a 64-bit process, that is the path that
// GetSystemDirectoryPath returns. Overwrites the buffer of GetSystemDirectoryPath.
WString GetNativeSystemDirectoryPath();

}  // namespace kelvo
