#pragma once

#include <cstddef>

#include "lib/string/wstring.h"

namespace kelvo {

// Each string argument is a WString or a pointer to a NUL-terminated string. A null pointer is
// treated as an empty string. Positions and lengths are in UTF-16 code units.

// Returns the `count` units of `text` that begin at position `start`. When fewer units are left,
// returns those that are left. Returns an empty string when `start` is at or past the end of
// `text`.
WString SubstringClamped(const WString& text, std::size_t start, std::size_t count = WString::npos);

// Replaces every occurrence of `search` in `text` with `replacement`, from left to right without
// overlap, and returns the number of replacements. Inserted text is not searched. When `search`
// is empty, replaces nothing and returns 0. `search` and `replacement` may point into `text`.
// Throws std::length_error when the result would be too long. When ReplaceAll throws, `text` is
// unchanged.
std::size_t ReplaceAll(WString& text, const wchar_t* search, const wchar_t* replacement);

// Returns the number of items that a StringTokenizer (lib/string/string_tokenizer.h) with the same
// arguments would return. With an empty `delimiter`, which a StringTokenizer does not accept,
// returns 0 when `text` is empty and 1 otherwise.
std::size_t CountTokens(const WString& text, const WString& delimiter, bool collapse);

}  // namespace kelvo
