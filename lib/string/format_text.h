#pragma once

#include <cstdarg>

#include "lib/string/wstring.h"

namespace kelvo {

// The text that Windows' own C runtime makes of a wide format and its arguments, of any length.
// "%s" inserts a wide text, whatever printf family the compiler brings; "%d" a 32-bit number,
// "%08lX" a code. A format that the runtime rejects gives an empty text.
WString FormatText(const wchar_t* format, ...);
WString FormatTextV(const wchar_t* format, std::va_list arguments);

}  // namespace kelvo
