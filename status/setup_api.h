#pragma once

#include "lib/platform/module.h"
#include "lib/string/wstring.h"
#include "lib/sysinfo/system_directories.h"

namespace kelvo {

// Loads Windows' own "setupapi.dll", and no other, by its full path: unlike search flags, that
// works on every Windows 7. Null when that fails; GetLastError then says why.
inline OwnedModule LoadSetupApi() {
  return OwnedModule(LoadLibraryW((WString(GetSystemDirectoryPath()) + L"setupapi.dll").c_str()));
}

}  // namespace kelvo
