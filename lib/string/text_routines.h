#pragma once

#include <cstddef>

#include "lib/string/wstring.h"

namespace kelvo {

// Strings are NUL-terminated or a WString; a null pointer counts as an empty string. Positions and
// counts are in UTF-16 code units.

// Returns `count` units from `start` on, or as many as there are. Returns an empty string when
// `start` is at the end or past it.
WString SubstringClamped(const WString& text, std::size_t start, std::size_t count = WString::npos);

// Replaces every occurrence of `search` in `text`, from left to right without overlap, and returns
// how many there were. The replacement is not searched again. An empty `search` never occurs. Both
// pointers may point into `text`. Throws std::length_error when the result would be too long. When
// it throws, `text` is unchanged.
std::size_t ReplaceAll(WString& text, const wchar_t* search, const wchar_t* replacement);

// Returns the number of items that a StringTokenizer with the same arguments would return. With an
// empty `delimiter`, which a tokenizer does not accept, a non-empty string is one item.
std::size_t CountTokens(const WString& text, const WString& delimiter, bool collapse);

}  // namespace kelvo
