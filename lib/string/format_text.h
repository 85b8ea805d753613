#pragma once

#include <cstdarg>

#include "lib/string/wstring.h"

namespace kelvo {

// Formats the arguments like the wide printf functions of Windows' own C runtime (_vsnwprintf). The
// result may have any length. In `format`, "%s" inserts a wide string, even where the compiler's
// own wide printf functions expect a narrow one; "%d" inserts a 32-bit number, "%08lX" an error
// code. `format` must not be null. Returns an empty string when the runtime rejects `format`.
WString FormatText(const wchar_t* format, ...);
WString FormatTextV(const wchar_t* format, std::va_list arguments);

}  // namespace kelvo
