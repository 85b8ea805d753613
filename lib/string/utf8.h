#pragma once

#include <string>
#include <string_view>

namespace kelvo {

// Returns `text` in UTF-8, with U+FFFD for an unpaired surrogate (WideCharToMultiByte). Throws
// std::length_error when an int might not hold the number of bytes.
std::string ToUtf8(std::wstring_view text);

}  // namespace kelvo
