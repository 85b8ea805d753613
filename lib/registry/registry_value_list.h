#pragma once

#include <windows.h>

#include <utility>
#include <vector>

#include "lib/string/wstring.h"

namespace kelvo {

// See lib/registry/registry_key.h for `root`, `subkey` and RegistryAccessFlags.

// Pairs of a name and a string, in order.
using NameTextList = std::vector<std::pair<WString, WString>>;

// Returns every REG_SZ, REG_EXPAND_SZ and REG_DWORD value of a key with its name, in the order of
// RegEnumValueW. Empty when the key does not open with KEY_READ, and when RegQueryInfoKeyW fails.
// Skips a value whose name has more than 16,382 characters or whose data has more than 16,383.
//   - REG_SZ: the string up to its first NUL, or to the end of the data when that has none. An odd
//     last byte becomes one more character.
//   - REG_EXPAND_SZ: that string expanded with ExpandEnvironmentStringsW, or as stored when that
//     fails or the result does not fit in 260 characters with its NUL.
//   - REG_DWORD: the number's bytes read as characters up to the first zero, not as digits. When
//     neither half of the number is zero, the string continues into what earlier values left in the
//     buffer.
NameTextList ReadRegistryKeyValues(HKEY root, const wchar_t* subkey);

}  // namespace kelvo
