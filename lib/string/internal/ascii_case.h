#pragma once

#include <algorithm>
#include <string_view>

namespace kelvo::internal {

// Returns true when two strings are equal or differ only in the case of the letters A to Z. The
// locale has no effect.
inline bool EqualsIgnoringAsciiCase(std::wstring_view a, std::wstring_view b) {
  constexpr auto fold = [](wchar_t unit) {
    return unit >= L'A' && unit <= L'Z' ? static_cast<wchar_t>(unit - L'A' + L'a') : unit;
  };
  return std::ranges::equal(a, b, {}, fold, fold);
}

}  // namespace kelvo::internal
