#pragma once

#include <string>
#include <string_view>

namespace kelvo {

// Converts `text` to UTF-8 (WideCharToMultiByte); an unpaired surrogate becomes U+FFFD. Throws
// std::length_error when `text` has more than INT_MAX / 3 UTF-16 code units.
std::string ToUtf8(std::wstring_view text);

}  // namespace kelvo
