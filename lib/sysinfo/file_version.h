#pragma once

namespace kelvo {

// How the version in a file's version resource stands to major.minor.build.revision: 1 when it is
// higher, 0 when equal, -1 when lower, 2 when the file has no version resource or it cannot be
// read. The answers 1 and 0 leave the memory that the resource was read into allocated and locked.
int CompareFileVersion(const wchar_t* path, int major, int minor, int build, int revision);

// Writes the version in a file's version resource as "major.minor.build.revision" into `text`, or
// "not available" where there is none. `text` must have room for 32 characters. True only when
// numbers were written.
bool GetFileVersionString(wchar_t* text, const wchar_t* path);

// The same for a file of the system directory, given by name; always true.
bool GetSystemFileVersionString(wchar_t* text, const wchar_t* fileName);

}  // namespace kelvo
