#pragma once

#include <windows.h>

#include "lib/string/wstring.h"

namespace kelvo {

// Writes the current UTC time and a message formatted as by FormatText, of any length and without a
// line break, to the debugger (OutputDebugStringW).
void DebugTrace(const wchar_t* format, ...);

// Returns the line that DebugTrace writes at `time`: "day.month.year
// hour:minute:second:millisecond", every number padded with zeros, a space and `message`.
WString FormatTraceLine(const SYSTEMTIME& time, const WString& message);

}  // namespace kelvo
