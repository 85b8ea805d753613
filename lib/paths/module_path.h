#pragma once

#include <windows.h>

#include "lib/string/wstring.h"

namespace kelvo {

// Returns a module's path (GetModuleFileNameW), of up to 32,767 characters. Null means the program
// itself. Empty when the process has no such module.
WString ReadModulePath(HMODULE module);

}  // namespace kelvo
