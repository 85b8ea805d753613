#pragma once

#include <windows.h>

#include "lib/string/wstring.h"

namespace kelvo {

// Returns the path of a module (GetModuleFileNameW), of up to 32,767 characters; of the program for
// null. Empty when the process has no such module.
WString ReadModulePath(HMODULE module);

}  // namespace kelvo
