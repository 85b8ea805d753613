#pragma once

#include <cstdint>

namespace kelvo {

// 0 when both NUL-terminated texts are equal after folding each unit to lower case, otherwise the
// first folded unit of `a` that differs minus the one of `b`, so negative when `a` sorts first.
// Neither may be null.
//
// Folding follows the C runtime's locale for character classes (setlocale), read once per call. In
// the default locale "C", A to Z become a to z, other units below U+0100 stay as they are and the
// rest goes through LCMapStringW with LCMAP_LOWERCASE; in any other locale, towlower decides.
// U+FFFF always stays.
std::int32_t CompareNoCase(const wchar_t* a, const wchar_t* b);

}  // namespace kelvo
