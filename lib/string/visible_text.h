#pragma once

#include <string>
#include <string_view>

namespace kelvo {

// Converts `text` to UTF-8 for a terminal or a log. Whatever would act on a terminal, and what
// UTF-8 cannot express, becomes its code, such as <U+001B>: control characters, line and paragraph
// separators, bidirectional formatting characters, the byte order mark, and unpaired surrogates.
// Throws std::length_error for a string too long for ToUtf8.
std::string ToVisibleUtf8(std::wstring_view text);

// Returns the number of characters (code points) in valid UTF-8. On a terminal that is the number
// of columns, unless some are wide or combining.
std::size_t CountCharacters(std::string_view utf8);

}  // namespace kelvo
