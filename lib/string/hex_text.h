#pragma once

#include <cstddef>

#include "lib/string/wstring.h"

namespace kelvo {

// Returns `count` bytes as hexadecimal digits: two upper-case digits for each byte, nothing between
// them. Returns an empty string for a null pointer.
WString BytesToHex(const void* bytes, std::size_t count);

}  // namespace kelvo
