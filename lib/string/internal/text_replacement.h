#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace kelvo::internal {

// Writes `text` to `out` with each occurrence of `search` replaced, and stops when `out` is full.
// `search` must not be empty. Returns the number of units written.
std::size_t WriteReplaced(std::wstring_view text, std::wstring_view search,
                          std::wstring_view replacement, std::span<wchar_t> out);

}  // namespace kelvo::internal
