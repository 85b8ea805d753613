#pragma once

#include <windows.h>

#include "lib/string/wstring.h"

namespace kelvo {

// Returns a module's path (GetModuleFileNameW), which may have up to 32,767 characters. A null
// `module` means the program itself. Returns an empty string when the process has no module with
// this handle.
WString ReadModulePath(HMODULE module);

}  // namespace kelvo
