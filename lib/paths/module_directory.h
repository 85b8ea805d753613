#pragma once

#include <windows.h>

namespace kelvo {

// The directory of the module whose handle `module` points to, with a trailing backslash
// (GetModuleFileNameW). A null pointer and a null handle mean the program itself. Returns one
// process-wide buffer of 255 characters, which the next call overwrites. Empty when the process has
// no such module, and when the directory with its backslash does not fit 254 characters and a NUL.
// A path without a backslash counts as a directory. Throws std::bad_alloc when memory runs out.
const wchar_t* GetModuleDirectory(const HMODULE* module);

}  // namespace kelvo
