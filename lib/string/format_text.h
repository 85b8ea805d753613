#pragma once

#include <cstdarg>

#include "lib/string/wstring.h"

namespace kelvo {

// Returns a wide format and its arguments as Windows' own C runtime formats them, of any length.
// "%s" inserts a wide string, whatever printf family the compiler brings; "%d" inserts a 32-bit
// number, "%08lX" a code. Returns an empty string when the runtime rejects the format. Throws
// std::bad_alloc when memory runs out.
WString FormatText(const wchar_t* format, ...);
WString FormatTextV(const wchar_t* format, std::va_list arguments);

}  // namespace kelvo
