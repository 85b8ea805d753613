#pragma once

#include <string>
#include <string_view>

namespace kelvo {

// Converts `text` to UTF-8 (WideCharToMultiByte); an unpaired surrogate becomes U+FFFD. Throws
// std::length_error when an int cannot count three bytes for each UTF-16 code unit.
std::string ToUtf8(std::wstring_view text);

}  // namespace kelvo
