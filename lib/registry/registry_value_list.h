#pragma once

#include <windows.h>

#include <utility>
#include <vector>

#include "lib/string/wstring.h"

namespace kelvo {

// lib/registry/registry_key.h describes `root`, `subkey` and the global RegistryAccessFlags.

// An ordered list of pairs. In each pair, the first string is a name, and the second is the text
// that belongs to the name.
using NameTextList = std::vector<std::pair<WString, WString>>;

// Returns the name and the string of every REG_SZ, REG_EXPAND_SZ and REG_DWORD value of a key, in
// the order of RegEnumValueW. Returns an empty list when the key cannot be opened with KEY_READ
// access, or when RegQueryInfoKeyW fails. Skips a value whose name has more than 16,382 characters
// or whose data has more than 32,766 bytes. The string of a value depends on its type:
//   - REG_SZ: the data up to its first NUL or, when there is no NUL, all the data. If the number of
//     bytes is odd, the last byte becomes one more character.
//   - REG_EXPAND_SZ: the string is read as for REG_SZ and then expanded with
//     ExpandEnvironmentStringsW. The string stays unexpanded when the expansion fails, or when the
//     expanded string has more than 260 characters, including its NUL.
//   - REG_DWORD: the number is not converted to digits. Its bytes are interpreted as UTF-16
//     characters, up to the first NUL character. All values are read into the same buffer. When the
//     number's bytes contain no NUL character, the string continues with the data that earlier
//     values left in that buffer.
NameTextList ReadRegistryKeyValues(HKEY root, const wchar_t* subkey);

}  // namespace kelvo
