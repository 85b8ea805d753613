#pragma once

#include "lib/string/wstring.h"

namespace kelvo {

// The directories of Windows' own libraries, each ending in a backslash and empty when it cannot be
// told. Their names do not say Get...Directory alone, which are macros of windows.h.

// The system directory (GetSystemDirectoryW). Stands in one process-wide buffer of 512 characters,
// which every call overwrites.
const wchar_t* GetSystemDirectoryPath();

// The directory of the 32-bit libraries on a 64-bit Windows (GetSystemWow64DirectoryW, looked up at
// run time), at most 1,023 characters. Empty also where Windows lacks the function.
WString GetSystemWow64DirectoryPath();

// The system directory, never redirected to the one of the 32-bit libraries.
WString GetNativeSystemDirectoryPath();

}  // namespace kelvo
