#pragma once

#include <windows.h>

#include <cstddef>
#include <map>

#include "lib/string/wstring.h"

namespace kelvo {

// ReplaceAllInBuffer and ApplyTextSubstitutions rewrite a string in place, in a buffer of
// `capacity` characters. A null buffer is ignored, and a buffer without a NUL in its capacity is
// left unchanged. In every other buffer, the result ends in a NUL within the capacity; text that
// does not fit is cut off.

// Replaces every occurrence of `search`, from left to right without overlap; the replacement is not
// searched again. Returns FALSE and leaves the buffer unchanged when the buffer is null or has no
// NUL in its capacity, or when `search` is null, empty or does not occur. A null `replacement`
// counts as empty. Neither `search` nor `replacement` may point into the buffer.
BOOL ReplaceAllInBuffer(wchar_t* buffer, std::size_t capacity, const wchar_t* search,
                        const wchar_t* replacement);

// Returns the map of the program's own replacements, from search string to replacement.
// ApplyTextSubstitutions applies them in the order of the keys, after replacing the maker's name.
// The program must fill the map before other threads call ApplyTextSubstitutions or
// RewriteWindowTexts; the library only reads the map.
std::map<WString, WString>& TextSubstitutions();

// Replaces the maker's name, "KELVO" or "Kelvo", with its lower-case form, "kelvo". Then applies
// each pair of TextSubstitutions() to the result of the pair before it. Returns `buffer`.
wchar_t* ApplyTextSubstitutions(wchar_t* buffer, std::size_t capacity);

}  // namespace kelvo
