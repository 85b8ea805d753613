#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace kelvo::test {

// Converts each UTF-16 code unit to its low byte. ASCII text therefore stays the same.
inline std::string Ascii(std::wstring_view text) {
  // If the string were constructed from wide iterators, the standard library would convert the
  // characters without a cast, and the compiler would warn.
  std::string bytes(text.size(), '\0');
  std::ranges::transform(text, bytes.begin(), [](wchar_t unit) { return static_cast<char>(unit); });
  return bytes;
}

}  // namespace kelvo::test
