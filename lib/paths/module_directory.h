#pragma once

#include <windows.h>

namespace kelvo {

// Returns the directory, with a trailing backslash, of the module whose handle `module` points to
// (GetModuleFileNameW). A null pointer or a null handle means the program itself. The string is in
// a process-wide buffer of 255 characters, which the next call overwrites. It is empty when the
// process has no such module, or when the directory with its backslash is longer than 254
// characters. A path without a backslash counts as a directory.
const wchar_t* GetModuleDirectory(const HMODULE* module);

}  // namespace kelvo
