#pragma once

#include <windows.h>

#include <cstddef>
#include <map>

#include "lib/string/wstring.h"

namespace kelvo {

// Texts are rewritten in place in a buffer of `capacity` characters. The result always ends in a
// NUL within the capacity: what does not fit is cut off. A text without a NUL there fills the
// capacity and stays as it is, and so does a null buffer.

// Replaces every occurrence of `search`, found from left to right and without overlap; what was put
// in is not searched again. Returns FALSE, and leaves the buffer alone, when the text fills the
// capacity or `search` does not occur; an empty or null one never does. A null `replacement` counts
// as empty. Neither text may lie in the buffer.
BOOL ReplaceAllInBuffer(wchar_t* buffer, std::size_t capacity, const wchar_t* search,
                        const wchar_t* replacement);

// What a program wants replaced, beside the maker's name: search text to replacement, applied in
// the order of the keys. Empty until the program fills it, which it does before its other threads
// rewrite texts; the library only reads it.
std::map<WString, WString>& TextSubstitutions();

// Writes the maker's name in lower case where it stands in capitals or capitalised, then applies
// TextSubstitutions(), each pair to what the ones before it left. Returns `buffer`.
wchar_t* ApplyTextSubstitutions(wchar_t* buffer, std::size_t capacity);

}  // namespace kelvo
