#pragma once

#include <windows.h>

#include "lib/string/wstring.h"

namespace kelvo::simulator {

// Reads an environment variable as a number in C notation, such as 5 or 0xE0000242. Returns 0 when
// the variable is not set.
DWORD NumberFromEnvironment(const wchar_t* name);

// Returns the value of an environment variable, or an empty string when the variable is not set.
WString TextFromEnvironment(const wchar_t* name);

// Appends a line in UTF-8 to the file named by the environment variable SORREL_SIMULATOR_JOURNAL.
// Does nothing when the variable is not set.
void WriteToJournal(const WString& line);

// The DllMain of each simulated library calls this function with the last two parameters of
// DllMain: the reason and a pointer. Writes "NAME loaded" to the journal when the library is
// loaded, and "NAME freed" when the library is freed. Writes nothing when the process ends while
// the library is loaded: `processEnds` is then not null.
void JournalLibrary(const wchar_t* name, DWORD reason, const void* processEnds);

}  // namespace kelvo::simulator
