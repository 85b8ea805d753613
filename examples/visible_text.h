#pragma once

#include <string>
#include <string_view>

namespace kelvo {

// The text in UTF-8 with everything that would act on a terminal, or that UTF-8 cannot carry, made
// visible: control characters, line and paragraph separators, marks that turn the direction of
// writing and unpaired surrogates stand there as <U+001B>. A replaced character, as every other,
// does no harm.
std::string VisibleUtf8(std::wstring_view text);

// How many columns such a text takes, counting one for each character.
std::size_t CountCharacters(std::string_view utf8);

}  // namespace kelvo
