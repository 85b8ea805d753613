#pragma once

namespace kelvo {

// Both functions ignore their first argument. `version` is major, minor, build and revision.

// Returns true when "Shdocvw.dll" in the system directory has this version or a higher one; false
// when the file is missing or has no version. Overwrites the buffer of GetSystemDirectoryPath. When
// the result is true, the memory that holds the version resource stays allocated.
bool IsIEVersionAtLeast(const void* ignored, const int (&version)[4]);

// Returns the name of the Internet Explorer release, from 3.0 to 5.5, that has exactly this
// version. The string is in a process-wide buffer of 256 characters. The next call that finds a
// name overwrites the buffer. When no release has this version, returns the unchanged buffer: it
// contains the last name found, or an empty string when none was found yet.
const wchar_t* GetIEVersionName(const void* ignored, const int (&version)[4]);

}  // namespace kelvo
