#include "lib/string/utf8.h"

#include <windows.h>

#include <limits>
#include <stdexcept>

namespace kelvo {

std::string ToUtf8(std::wstring_view text) {
  // A UTF-16 code unit becomes at most three bytes of UTF-8.
  constexpr std::size_t kMaxBytesOfUnit = 3;
  constexpr std::size_t kMaxLength = std::numeric_limits<int>::max() / kMaxBytesOfUnit;
  if (text.length() > kMaxLength) {
    throw std::length_error("string too long");
  }
  std::string utf8(text.length() * kMaxBytesOfUnit, '\0');
  utf8.resize(static_cast<std::size_t>(
      WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.length()), utf8.data(),
                          static_cast<int>(utf8.size()), nullptr, nullptr)));
  return utf8;
}

}  // namespace kelvo
