#pragma once

#include <cstddef>

#include "lib/string/wstring.h"

namespace kelvo {

// Routines for texts that are NUL-terminated or a WString; a null pointer counts as an empty text.
// Positions and counts are in UTF-16 units. std::bad_alloc is thrown when memory runs out.

// Returns `count` units from `start` on, or what there is of them: a start past the end gives an
// empty text.
WString SubstringClamped(const WString& text, std::size_t start, std::size_t count = WString::npos);

// Replaces every occurrence of `search` in `text`, found from left to right without overlap, and
// returns how many there were. What was put in is not searched again; an empty `search` occurs
// never. Both arguments may lie in `text`. Throws std::length_error when the result would be too
// long. When it throws, `text` is unchanged.
std::size_t ReplaceAll(WString& text, const wchar_t* search, const wchar_t* replacement);

// Returns how many items a StringTokenizer made of the same arguments would yield. With an empty
// `delimiter`, which a tokenizer does not take, a text that is not empty is one item.
std::size_t CountTokens(const WString& text, const WString& delimiter, bool collapse);

}  // namespace kelvo
