#pragma once

#include <windows.h>

#include "lib/string/wstring.h"

namespace kelvo {

// Splits a full path such as HKEY_CURRENT_USER\Software\App\Setting into its root key, the path
// below it and the value's name, which follows the last backslash. The root is HKEY_CLASSES_ROOT,
// HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE or HKEY_USERS, in capitals and in full. Returns true when
// neither the key path nor the value name is empty. When it returns false, a path without one of
// these roots assigned nothing, and one without a backslash below its root assigned only `root`.
bool ParseRegistryValuePath(const WString& fullPath, HKEY& root, WString& keyPath,
                            WString& valueName);

}  // namespace kelvo
