#pragma once

#include <string>
#include <string_view>

namespace kelvo {

// `text` in UTF-8, an unpaired surrogate as U+FFFD (WideCharToMultiByte). Throws std::length_error
// for a text whose UTF-8 an int might not count, and std::bad_alloc.
std::string ToUtf8(std::wstring_view text);

}  // namespace kelvo
