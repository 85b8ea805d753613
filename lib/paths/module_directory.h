#pragma once

#include <windows.h>

namespace kelvo {

// The directory of the module whose handle `module` points to, with a trailing backslash
// (GetModuleFileNameW); a null handle, like a null pointer, means the program itself. Points to one
// process-wide buffer of 255 characters, which the next call overwrites. Empty when the module is
// none of this process's and when its path, or a path without a backslash together with the one
// that it gets, does not fit into 254 characters and a NUL: a cut path would name another
// directory.
const wchar_t* GetModuleDirectory(const HMODULE* module);

}  // namespace kelvo
