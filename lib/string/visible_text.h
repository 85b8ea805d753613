#pragma once

#include <string>
#include <string_view>

namespace kelvo {

// Returns `text` in UTF-8 for a terminal or a log. Whatever would act on a terminal, and what UTF-8
// cannot express, is written as its number, such as <U+001B>: control characters, line and
// paragraph separators, marks that change the direction of writing, and unpaired surrogates. Throws
// std::length_error for a string too long for ToUtf8, std::bad_alloc when memory runs out.
std::string ToVisibleUtf8(std::wstring_view text);

// Returns the number of columns that such a string takes on a terminal, one for each character.
std::size_t CountCharacters(std::string_view utf8);

}  // namespace kelvo
