#pragma once

#include <span>

namespace kelvo::internal {

// Appends a backslash to the NUL-terminated string in `buffer` unless it ends in one. Returns
// false, and leaves the string as it is, when the buffer has no room for one more character.
bool EnsureTrailingBackslash(std::span<wchar_t> buffer);

}  // namespace kelvo::internal
