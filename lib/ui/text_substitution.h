#pragma once

#include <windows.h>

#include <cstddef>
#include <map>

#include "lib/string/wstring.h"

namespace kelvo {

// ReplaceAllInBuffer and ApplyTextSubstitutions rewrite a string in place, in a buffer of
// `capacity` characters. They ignore a null buffer, and do not change a buffer that has no NUL in
// its first `capacity` characters. A result that is too long for the buffer is shortened to
// `capacity` - 1 characters and a NUL.

// Replaces every occurrence of `search`, from left to right without overlap. Does not search the
// inserted text. Returns FALSE and leaves the buffer unchanged when the buffer is null or has no
// NUL in its first `capacity` characters, or when `search` is null, empty or does not occur. A null
// `replacement` counts as empty. Neither `search` nor `replacement` may point into the buffer.
BOOL ReplaceAllInBuffer(wchar_t* buffer, std::size_t capacity, const wchar_t* search,
                        const wchar_t* replacement);

// Returns a map to which the program can add its own replacements. A key is the string to search
// for, and its value is the replacement. ApplyTextSubstitutions first replaces "KELVO" and "Kelvo"
// with "kelvo", and then applies these replacements in the order of their keys. The library only
// reads the map, and takes no lock. Therefore fill the map before other threads call
// ApplyTextSubstitutions or RewriteWindowTexts.
std::map<WString, WString>& TextSubstitutions();

// Replaces the maker's name, "KELVO" or "Kelvo", with its lower-case form, "kelvo". Then applies
// each replacement in TextSubstitutions() to the result of the replacement before it. Returns
// `buffer`.
wchar_t* ApplyTextSubstitutions(wchar_t* buffer, std::size_t capacity);

}  // namespace kelvo
