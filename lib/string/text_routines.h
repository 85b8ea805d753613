#pragma once

#include <cstddef>

#include "lib/string/wstring.h"

namespace kelvo {

// Each string argument is a WString or a pointer to NUL-terminated units; a null pointer counts as
// an empty string. Positions and lengths are in UTF-16 code units.

// Returns `count` units from `start` on. When fewer than `count` units are left, returns all of
// these. Returns an empty string when `start` is at the end or past it.
WString SubstringClamped(const WString& text, std::size_t start, std::size_t count = WString::npos);

// Replaces every occurrence of `search` in `text`, from left to right without overlap, and returns
// the number of occurrences. The replacement is not searched again. When `search` is empty,
// replaces nothing and returns 0. `search` and `replacement` may point into `text`. Throws
// std::length_error when the result would be too long. When ReplaceAll throws, `text` is unchanged.
std::size_t ReplaceAll(WString& text, const wchar_t* search, const wchar_t* replacement);

// Returns the number of items that a StringTokenizer with the same arguments would return. With an
// empty `delimiter`, which a StringTokenizer does not accept, returns 0 when `text` is empty
// and 1 otherwise.
std::size_t CountTokens(const WString& text, const WString& delimiter, bool collapse);

}  // namespace kelvo
