#pragma once

#include <span>

namespace kelvo::internal {

// Appends a backslash to the NUL-terminated string in `buffer`, unless the string already ends in a
// backslash. Returns false and leaves the string unchanged when the backslash does not fit.
bool EnsureTrailingBackslash(std::span<wchar_t> buffer);

}  // namespace kelvo::internal
