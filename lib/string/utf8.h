#pragma once

#include <string>
#include <string_view>

namespace kelvo {

// Converts `text` to UTF-8 (WideCharToMultiByte); an unpaired surrogate becomes U+FFFD. Throws
// std::length_error when the number of bytes might not fit in an int.
std::string ToUtf8(std::wstring_view text);

}  // namespace kelvo
