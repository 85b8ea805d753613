#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace kelvo::test {

// Converts each UTF-16 code unit to its low byte. ASCII text therefore stays the same.
inline std::string Ascii(std::wstring_view text) {
  // With std::string(text.begin(), text.end()), Visual C++ would warn of the implicit conversion.
  std::string bytes(text.size(), '\0');
  std::ranges::transform(text, bytes.begin(), [](wchar_t unit) { return static_cast<char>(unit); });
  return bytes;
}

}  // namespace kelvo::test
