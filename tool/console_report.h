#pragma once

#include <windows.h>

#include "lib/string/wstring.h"

namespace kelvo {

// Formats a message with FormatText (lib/string/format_text.h) and writes the text to standard
// output without buffering. Therefore a setup program that reads the output through a pipe sees
// each line immediately, and no line is lost when the process ends early. The bytes do not depend
// on the locale: "\n" becomes CR LF, a UTF-16 unit up to U+00FF becomes the byte with the same
// value, and a unit above U+00FF becomes "?". A failed write is ignored. Throws std::bad_alloc when
// memory runs out.
void Report(const wchar_t* format, ...);

// Returns the system's message for an error code (FormatMessageW) in the user's language, including
// its final line break. Returns an empty string when the system has no message for the code, or
// when the message has more than 1,999 characters. Also returns an empty string when the message
// has insert sequences such as "%1", because FormatMessageW gets no arguments for them.
WString FormatSystemMessage(DWORD code);

}  // namespace kelvo
