#pragma once

namespace kelvo {

// Both functions ignore their first argument. The numbers in `version` are major, minor, build and
// revision, in this order.

// Returns true when "Shdocvw.dll" in the system directory has this version or a higher one. Returns
// false when the file has a lower version or no version, or is missing. Overwrites the buffer of
// GetSystemDirectoryPath (lib/sysinfo/system_directories.h). Each call that returns true leaks the
// memory that holds the file's version resource.
bool IsIEVersionAtLeast(const void* ignored, const int (&version)[4]);

// Returns the name of the Internet Explorer release that has exactly this version. Knows the
// releases from 3.0 to 5.5. The name is in a process-wide buffer of 256 characters. The next call
// that finds a name overwrites the buffer. When none of these releases has this version, returns
// the unchanged buffer: it contains the name that was found last, or an empty string when no name
// was found yet.
const wchar_t* GetIEVersionName(const void* ignored, const int (&version)[4]);

}  // namespace kelvo
