#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace kelvo::internal {

// Copies `text` to `out`, but writes `replacement` in place of each occurrence of `search`. Stops
// when `out` is full. `search` must not be empty. Returns the number of UTF-16 code units written.
std::size_t WriteReplaced(std::wstring_view text, std::wstring_view search,
                          std::wstring_view replacement, std::span<wchar_t> out);

}  // namespace kelvo::internal
