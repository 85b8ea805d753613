#pragma once

#include <cstddef>

namespace kelvo {

// These functions read a file's version from the VS_FIXEDFILEINFO block of its version resource
// (GetFileVersionInfoW, VerQueryValueW). There is no version when the path is null, when the file
// cannot be read or has no such block, or when the block is not completely inside the resource. The
// dwSignature in the block is not checked, so arbitrary data in an untrusted file can be taken for
// a version. These functions do not validate the resource before they let Windows parse it.

// Compares a file's version with major.minor.build.revision. Returns 1 when the file's version is
// higher, 0 when it is equal, -1 when it is lower, and 2 when there is no version. When the result
// is 1 or 0, the memory that holds the resource is leaked: it stays allocated and locked.
int CompareFileVersion(const wchar_t* path, int major, int minor, int build, int revision);

// Another name for CompareFileVersion.
int CompareFileVersionNumbers(const wchar_t* path, int major, int minor, int build, int revision);

// A buffer size sufficient for every version string, in characters including the NUL.
constexpr std::size_t kFileVersionStringCapacity = 32;

// Writes the version of the file `path` as "major.minor.build.revision" to `text`, which must have
// room for kFileVersionStringCapacity characters, and returns true. When there is no version,
// writes "not available" and returns false.
bool GetFileVersionString(wchar_t* text, const wchar_t* path);

// Calls GetFileVersionString for the file `fileName` in the system directory, but always returns
// true. Overwrites the process-wide buffer whose address GetSystemDirectoryPath returns.
bool GetSystemFileVersionString(wchar_t* text, const wchar_t* fileName);

}  // namespace kelvo
