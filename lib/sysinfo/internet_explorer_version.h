#pragma once

namespace kelvo {

// Both functions ignore their first argument. `version` is major, minor, build and revision.

// Returns true when "Shdocvw.dll" in the system directory has this version or a higher one; false
// when the file is missing or has no version. Overwrites the buffer of GetSystemDirectoryPath. When
// the result is true, the memory that holds the version resource stays allocated.
bool IsIEVersionAtLeast(const void* ignored, const int (&version)[4]);

// Returns the name of the Internet Explorer release, from 3.0 to 5.5, that has exactly this
// version. The string is in a process-wide buffer of 256 characters, which the next call
// overwrites. For a version without a name, the buffer keeps the last name found; initially it is
// empty.
const wchar_t* GetIEVersionName(const void* ignored, const int (&version)[4]);

}  // namespace kelvo
