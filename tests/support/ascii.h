#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace kelvo::test {

// Each unit as a byte; of one outside ASCII, its low byte.
inline std::string Ascii(std::wstring_view text) {
  // A std::string made of wide iterators would narrow inside the library, where nothing can be
  // cast.
  std::string bytes(text.size(), '\0');
  std::ranges::transform(text, bytes.begin(), [](wchar_t unit) { return static_cast<char>(unit); });
  return bytes;
}

}  // namespace kelvo::test
