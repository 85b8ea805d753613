#pragma once

#include <windows.h>

#include "lib/string/wstring.h"
#include "tool/difxapi.h"

namespace kelvo {

// Writes one message to standard output, formatted as FormatText does, before it returns: a setup
// program that reads the pipe sees each step when it is done, and nothing is lost when the process
// ends early. The bytes are fixed: CR LF for "\n", a unit up to U+00FF as the byte of that value,
// "?" for any other. A failing write is ignored.
void Report(const wchar_t* format, ...);

// The system's text for an error code (FormatMessageW, the user's language), at most 1,999
// characters and with the line break that it ends in; empty when the system has none.
WString FormatSystemMessage(DWORD code);

// The log callback of the driver installation interface: reports the event as one "INFO: " line. A
// null description counts as empty; `context` is not used. May be called on any thread.
void CALLBACK DifxLogCallback(DIFXAPI_LOG event, DWORD error, PCWSTR description, PVOID context);

}  // namespace kelvo
