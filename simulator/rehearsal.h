#pragma once

#include <windows.h>

#include "lib/string/wstring.h"

namespace kelvo::simulator {

// Reads an environment variable as a number in C notation, such as 5 or 0xE0000242. Returns 0 when
// the variable is not set.
DWORD NumberFromEnvironment(const wchar_t* name);

// Returns the value of an environment variable, or an empty string when the variable is not set.
WString TextFromEnvironment(const wchar_t* name);

// Appends `line` and CR LF, in UTF-8, to the journal. The journal is the file whose path is in the
// environment variable SORREL_SIMULATOR_JOURNAL. Does nothing when the variable is not set or the
// file cannot be opened.
void WriteToJournal(const WString& line);

// The DllMain of each simulated library calls this function. `reason` and `processEnds` are the
// last two parameters of DllMain. When the library is loaded, writes `name` and " loaded" to the
// journal. When the library is freed, writes `name` and " freed". When the library is unloaded
// because the process ends, `processEnds` is not null and the function writes nothing.
void JournalLibrary(const wchar_t* name, DWORD reason, const void* processEnds);

}  // namespace kelvo::simulator
