#pragma once

#include <windows.h>

#include "lib/string/wstring.h"

namespace kelvo {

// Splits a full path such as HKEY_CURRENT_USER\Software\App\Setting into its root key, the path
// below it and the value's name, which follows the last backslash. The root is HKEY_CLASSES_ROOT,
// HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE or HKEY_USERS, in capitals and unabbreviated. Returns true
// when neither the key path nor the value name is empty. Otherwise returns false. It then assigns
// nothing when the path does not start with one of these roots and a backslash, only `root` when
// there is no second backslash, and all three when the key path or the value name is empty.
bool ParseRegistryValuePath(const WString& fullPath, HKEY& root, WString& keyPath,
                            WString& valueName);

}  // namespace kelvo
