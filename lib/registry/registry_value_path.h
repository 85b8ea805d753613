#pragma once

#include <windows.h>

#include "lib/string/wstring.h"

namespace kelvo {

// Splits a full path such as HKEY_CURRENT_USER\Software\App\Setting into its root key, the path
// below it and the value's name, which is what follows the last backslash. The root is one of
// HKEY_CLASSES_ROOT, HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE and HKEY_USERS, in capitals and in full.
// True when key path and value name are both non-empty. Without one of these roots nothing is
// assigned; `root` is from there on, key path and value name once a backslash parts them.
bool ParseRegistryValuePath(const WString& fullPath, HKEY& root, WString& keyPath,
                            WString& valueName);

}  // namespace kelvo
