#pragma once

#include <string>
#include <string_view>

namespace kelvo {

// Converts `text` to UTF-8 for a terminal or a log. Replaces the following with codes such as
// <U+001B>:
//   - characters that a terminal would obey instead of showing, or that would hide or reorder text:
//     control characters, line and paragraph separators, bidirectional formatting characters and
//     the byte order mark
//   - unpaired surrogates, which UTF-8 cannot express
// Throws std::length_error when the text, with these codes in it, is too long for ToUtf8
// (lib/string/utf8.h).
std::string ToVisibleUtf8(std::wstring_view text);

// Returns the number of characters (code points) in valid UTF-8. On a terminal, the text takes that
// many columns if every character takes one.
std::size_t CountCharacters(std::string_view utf8);

}  // namespace kelvo
