#pragma once

#include <string>
#include <string_view>

namespace kelvo {

// `text` in UTF-8 for a terminal or a log. What would act on a terminal, or what UTF-8 cannot
// carry, is written as its number, <U+001B>: control characters, line and paragraph separators,
// marks that change the direction of writing, and unpaired surrogates. Throws std::length_error
// for a text too long for ToUtf8, and std::bad_alloc.
std::string ToVisibleUtf8(std::wstring_view text);

// The columns that such a string takes on a terminal, counting one for each character.
std::size_t CountCharacters(std::string_view utf8);

}  // namespace kelvo
