#pragma once

#include <cstddef>

namespace kelvo {

// The numbers in the fixed block of a file's version resource (GetFileVersionInfoW,
// VerQueryValueW). A null path, a file without such a block and one whose block does not lie inside
// its resource have no version. That is what is checked, not the block's signature: in a file from
// an untrusted source the numbers may be anything, and Windows takes its resource apart.

// Compares a file's version with major.minor.build.revision: returns 1 when the file's is higher, 0
// when equal, -1 when lower, 2 when it has none. The results 1 and 0 leave the memory that the
// resource was read into allocated and locked.
int CompareFileVersion(const wchar_t* path, int major, int minor, int build, int revision);

// Another name for CompareFileVersion.
int CompareFileVersionNumbers(const wchar_t* path, int major, int minor, int build, int revision);

// The room that every version string fits into, in characters including the NUL.
constexpr std::size_t kFileVersionStringCapacity = 32;

// Writes the version of the file `path` as "major.minor.build.revision" into `text`, which must
// have room for kFileVersionStringCapacity characters. Returns false, and writes "not available",
// when there is none.
bool GetFileVersionString(wchar_t* text, const wchar_t* path);

// Writes the version of a file in the system directory, given by name, as
// "major.minor.build.revision" into `text`, which must have room for kFileVersionStringCapacity
// characters; "not available" when there is none. Always returns true. Overwrites the buffer of
// GetSystemDirectoryPath.
bool GetSystemFileVersionString(wchar_t* text, const wchar_t* fileName);

}  // namespace kelvo
