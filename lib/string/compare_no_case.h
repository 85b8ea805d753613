#pragma once

#include <cstdint>

namespace kelvo {

// Compares two NUL-terminated strings, ignoring case. Neither pointer may be null. Folds each
// UTF-16 code unit to lower case. Returns 0 when the folded strings are equal. Otherwise, returns
// the folded unit of `a` minus the folded unit of `b` at the first position where the folded
// strings differ. The result is negative when `a` sorts before `b`.
//
// Folding depends on the C runtime's LC_CTYPE locale (setlocale), which each call queries once. In
// the locale "C" (the C runtime's default), A to Z become a to z, other units below U+0100 stay as
// they are, and LCMapStringW with LCMAP_LOWERCASE folds the units from U+0100 up. In any other
// locale, towlower folds the units. In every locale, U+FFFF stays as it is.
std::int32_t CompareNoCase(const wchar_t* a, const wchar_t* b);

}  // namespace kelvo
