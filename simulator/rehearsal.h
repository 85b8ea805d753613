#pragma once

#include <windows.h>

#include "lib/string/wstring.h"

namespace kelvo::simulator {

// Returns the number in an environment variable, written as in C (0x for hexadecimal), or 0 when it
// is not set.
DWORD NumberFromEnvironment(const wchar_t* name);

// Returns the value of an environment variable, or an empty string when it is not set.
WString TextFromEnvironment(const wchar_t* name);

// Appends a line, in UTF-8, to the file that the environment variable SORREL_SIMULATOR_JOURNAL
// names; does nothing when it is not set.
void WriteToJournal(const WString& line);

// Called by DllMain of each stand-in: journals that the library is loaded or freed, but not the end
// of a process that still has it loaded.
void JournalLibrary(const wchar_t* name, DWORD reason, const void* processEnds);

}  // namespace kelvo::simulator
