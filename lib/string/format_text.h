#pragma once

#include <cstdarg>

#include "lib/string/wstring.h"

namespace kelvo {

// Formats the arguments with _vsnwprintf, a function of Windows' C runtime. The result may have any
// length. In `format`, "%s" always takes a wide string, even with mingw. (In the standard wide
// printf functions of mingw, "%s" takes a narrow string.) "%d" takes a 32-bit number. "%08lX"
// writes an error code as eight hexadecimal digits. `format` must not be null. Returns an empty
// string when _vsnwprintf rejects `format`.
WString FormatText(const wchar_t* format, ...);
WString FormatTextV(const wchar_t* format, std::va_list arguments);

}  // namespace kelvo
