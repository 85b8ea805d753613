#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace kelvo::test {

// Converts each unit to a byte. A unit outside ASCII keeps only its low byte.
inline std::string Ascii(std::wstring_view text) {
  // A std::string made of wide iterators would narrow inside the standard library, where no cast is
  // possible.
  std::string bytes(text.size(), '\0');
  std::ranges::transform(text, bytes.begin(), [](wchar_t unit) { return static_cast<char>(unit); });
  return bytes;
}

}  // namespace kelvo::test
