#pragma once

#include <span>

namespace kelvo::internal {

// Makes the NUL-terminated text in `buffer` end in a backslash. False, with the text as it was,
// when the buffer has no room for one more character.
bool EnsureTrailingBackslash(std::span<wchar_t> buffer);

}  // namespace kelvo::internal
