#pragma once

#include <cstddef>

namespace kelvo {

// The version is in the VS_FIXEDFILEINFO block of a file's version resource (GetFileVersionInfoW,
// VerQueryValueW). A null path, a file without that block, and one whose block is not inside its
// resource have no version. The block's signature is not checked: in a file from an untrusted
// source, the numbers may be anything, and it is Windows that parses the resource.

// Compares a file's version with major.minor.build.revision. Returns 1 when the file's is higher, 0
// when equal, -1 when lower, and 2 when it has none. When the result is 1 or 0, the memory that
// holds the resource stays allocated and locked.
int CompareFileVersion(const wchar_t* path, int major, int minor, int build, int revision);

// Another name for CompareFileVersion.
int CompareFileVersionNumbers(const wchar_t* path, int major, int minor, int build, int revision);

// A buffer size sufficient for every version string, in characters including the NUL.
constexpr std::size_t kFileVersionStringCapacity = 32;

// Writes the version of the file `path` as "major.minor.build.revision" to `text`, which must have
// room for kFileVersionStringCapacity characters. When there is none, writes "not available" and
// returns false.
bool GetFileVersionString(wchar_t* text, const wchar_t* path);

// GetFileVersionString for the file `fileName` in the system directory, except that it always
// returns true. Overwrites the buffer of GetSystemDirectoryPath.
bool GetSystemFileVersionString(wchar_t* text, const wchar_t* fileName);

}  // namespace kelvo
