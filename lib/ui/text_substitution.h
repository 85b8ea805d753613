#pragma once

#include <windows.h>

#include <cstddef>
#include <map>

#include "lib/string/wstring.h"

namespace kelvo {

// Strings are rewritten in place, in a buffer of `capacity` characters. The result always ends in a
// NUL within the capacity; what does not fit is cut off. A buffer without a NUL in its capacity is
// left as it is. A null buffer is allowed and does nothing.

// Replaces every occurrence of `search`, found from left to right and without overlap; the
// replacement is not searched again. Returns FALSE, and leaves the buffer as it is, when it has no
// NUL in its capacity or `search` does not occur, which is always so for an empty or null one. A
// null `replacement` counts as empty. Neither string may lie in the buffer.
BOOL ReplaceAllInBuffer(wchar_t* buffer, std::size_t capacity, const wchar_t* search,
                        const wchar_t* replacement);

// What a program wants replaced in addition to the maker's name: a map of search string to
// replacement, applied in the order of the keys. The program fills it before its other threads
// rewrite strings; the library only reads it.
std::map<WString, WString>& TextSubstitutions();

// Replaces the maker's name, in capitals or capitalised, with its lower-case form, then applies
// TextSubstitutions(), each pair to the result of the one before. Returns `buffer`.
wchar_t* ApplyTextSubstitutions(wchar_t* buffer, std::size_t capacity);

}  // namespace kelvo
