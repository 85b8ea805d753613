#pragma once

#include <windows.h>

#include "lib/string/wstring.h"

namespace kelvo {

// Splits a full path such as HKEY_CURRENT_USER\Software\App\Setting into the root key, the path of
// the key below the root, and the value's name, which follows the last backslash. The root is
// HKEY_CLASSES_ROOT, HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE or HKEY_USERS. The root must be in
// upper case and must not be abbreviated. Returns true when neither the key path nor the value name
// is empty. Returns false in these cases:
//   - The full path does not start with one of these roots and a backslash. Assigns nothing.
//   - The backslash after the root is the only backslash in the full path. Assigns only `root`.
//   - The key path or the value name is empty. Assigns all three results.
bool ParseRegistryValuePath(const WString& fullPath, HKEY& root, WString& keyPath,
                            WString& valueName);

}  // namespace kelvo
