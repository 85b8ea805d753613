#pragma once

#include <cstddef>

#include "lib/string/wstring.h"

namespace kelvo {

// Returns `count` bytes as hexadecimal text: two upper-case digits for each byte, nothing between.
// A null pointer gives an empty text. Throws std::bad_alloc when memory runs out.
WString BytesToHex(const void* bytes, std::size_t count);

}  // namespace kelvo
