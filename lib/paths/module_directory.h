#pragma once

#include <windows.h>

namespace kelvo {

// Returns the directory of a module (GetModuleFileNameW), with a trailing backslash. `module`
// points to the module's handle; a null pointer or a null handle means the program itself. The
// returned string is in a process-wide buffer of 255 characters, which the next call overwrites.
// The string is empty when the process has no module with this handle, or when the directory and
// its backslash have more than 254 characters. If the module's path has no backslash, the whole
// path counts as the directory.
const wchar_t* GetModuleDirectory(const HMODULE* module);

}  // namespace kelvo
