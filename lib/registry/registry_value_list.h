#pragma once

#include <windows.h>

#include <utility>
#include <vector>

#include "lib/string/wstring.h"

namespace kelvo {

// Names, each with a text, in order.
using NameTextList = std::vector<std::pair<WString, WString>>;

// Every value of a key that is a text or a number, with its name, in the order in which
// RegEnumValueW gives them; empty when the key does not open with KEY_READ. Names and data of more
// than 16,382 and 16,383 characters are skipped.
//   - REG_SZ: the text up to its first NUL, or the end of the data when that has none; a last odd
//     byte becomes a unit of its own.
//   - REG_EXPAND_SZ: the same, expanded with ExpandEnvironmentStringsW; as it is stored when the
//     result does not fit 260 characters with its NUL.
//   - REG_DWORD: the number's bytes as text up to the first zero unit, not as digits. When neither
//     half of the number is zero, the text runs on into what values before it left in the buffer.
NameTextList ReadRegistryKeyValues(HKEY root, const wchar_t* subkey);

}  // namespace kelvo
