#pragma once

#include <windows.h>

#include <cstddef>
#include <map>

#include "lib/string/wstring.h"

namespace kelvo {

// The functions rewrite a string in place, in a buffer of `capacity` characters. The result always
// ends in a NUL within the capacity; what does not fit is cut off. A buffer without a NUL in its
// capacity is left unchanged. A null buffer is allowed and does nothing.

// Replaces every occurrence of `search`, from left to right without overlap; the replacement is not
// searched again. Returns FALSE and leaves the buffer unchanged when it has no NUL in its capacity,
// or when `search` is null, empty or does not occur. A null `replacement` counts as empty. Neither
// string may be in the buffer.
BOOL ReplaceAllInBuffer(wchar_t* buffer, std::size_t capacity, const wchar_t* search,
                        const wchar_t* replacement);

// The program's own replacements, in addition to that of the maker's name: a map of search string
// to replacement, applied in the order of the keys. The program fills it before its other threads
// rewrite strings; the library only reads it.
std::map<WString, WString>& TextSubstitutions();

// Replaces the maker's name, in capitals or capitalised, with its lower-case form, then applies
// TextSubstitutions(), each pair to the result of the one before. Returns `buffer`.
wchar_t* ApplyTextSubstitutions(wchar_t* buffer, std::size_t capacity);

}  // namespace kelvo
