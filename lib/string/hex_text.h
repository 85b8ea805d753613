#pragma once

#include <cstddef>

#include "lib/string/wstring.h"

namespace kelvo {

// Returns `count` bytes as hexadecimal digits: two upper-case digits per byte, without separators.
// Returns an empty string for a null pointer.
WString BytesToHex(const void* bytes, std::size_t count);

}  // namespace kelvo
