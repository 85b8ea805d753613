#pragma once

#include <span>

namespace kelvo::internal {

// Appends a backslash to the NUL-terminated string in `buffer`, unless the string ends in one.
// Returns false and leaves the string unchanged when the buffer has no room for another character.
bool EnsureTrailingBackslash(std::span<wchar_t> buffer);

}  // namespace kelvo::internal
