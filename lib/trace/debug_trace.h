#pragma once

#include <windows.h>

#include "lib/string/wstring.h"

namespace kelvo {

// Writes the current UTC time and a message to the debugger (OutputDebugStringW). The message is
// the text that FormatText (lib/string/format_text.h) returns for `format` and the arguments. The
// message may have any length. No line break is added.
void DebugTrace(const wchar_t* format, ...);

// Returns the line that DebugTrace writes at `time`: the time, a space and `message`. The format of
// the time is day.month.year hour:minute:second:millisecond, padded with zeros, for example
// "31.01.2026 09:05:07:042".
WString FormatTraceLine(const SYSTEMTIME& time, const WString& message);

}  // namespace kelvo
