#pragma once

#include <windows.h>

#include "lib/string/wstring.h"

namespace kelvo {

// Writes the text that FormatText makes of `format` and its arguments, of any length, to the
// debugger (OutputDebugStringW), behind the current time in UTC and without a line end.
void DebugTrace(const wchar_t* format, ...);

// The line that DebugTrace writes at `time`: "day.month.year hour:minute:second:millisecond", every
// number filled up with zeros, a blank, `message`.
WString FormatTraceLine(const SYSTEMTIME& time, const WString& message);

}  // namespace kelvo
