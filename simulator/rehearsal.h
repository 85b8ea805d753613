#pragma once

#include <windows.h>

#include "lib/string/wstring.h"

namespace kelvo::simulator {

// Returns the number in an environment variable, written as in C (0x for hexadecimal), or 0 when
// the variable is not set.
DWORD NumberFromEnvironment(const wchar_t* name);

// Returns the value of an environment variable, or an empty string when the variable is not set.
WString TextFromEnvironment(const wchar_t* name);

// Appends a line in UTF-8 to the file named by the environment variable SORREL_SIMULATOR_JOURNAL.
// Does nothing when the variable is not set.
void WriteToJournal(const WString& line);

// Writes to the journal that a simulated library was loaded or freed; its DllMain calls this.
// Writes nothing when the process ends with the library still loaded.
void JournalLibrary(const wchar_t* name, DWORD reason, const void* processEnds);

}  // namespace kelvo::simulator
