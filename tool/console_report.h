#pragma once

#include <windows.h>

#include "lib/string/wstring.h"

namespace kelvo {

// Writes one message to standard output, formatted by FormatText, before it returns: a setup
// program that reads the pipe sees each step when it is done, and nothing is lost when the process
// ends early. The bytes are fixed: CR LF for "\n", one byte for a unit up to U+00FF, "?" for any
// other unit. A failing write is ignored. Throws std::bad_alloc when memory runs out.
void Report(const wchar_t* format, ...);

// The system's text for an error code (FormatMessageW, the user's language), at most 1,999
// characters and with its final line break. Empty when the system has none, and for a text with
// inserts ("%1"), which gets no arguments.
WString FormatSystemMessage(DWORD code);

}  // namespace kelvo
