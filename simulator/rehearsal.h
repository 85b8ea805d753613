#pragma once

#include <windows.h>

#include <string>

namespace kelvo::simulator {

// The number in an environment variable, written as in C (0x for hexadecimal); 0 when it is not
// set.
DWORD NumberFromEnvironment(const wchar_t* name);

// The text in an environment variable; empty when it is not set.
std::wstring TextFromEnvironment(const wchar_t* name);

// Adds one line, in UTF-8, to the file that SORREL_SIMULATOR_JOURNAL names; does nothing when it
// names none.
void WriteToJournal(const std::wstring& line);

// What DllMain does in each stand-in: a line when the library is loaded and one when it is freed,
// but none when the process ends with the library still loaded.
void JournalLibrary(const wchar_t* name, DWORD reason, const void* processEnds);

}  // namespace kelvo::simulator
