#pragma once

namespace kelvo {

// Returns true when FindFirstFileW finds `path`: a file, a folder, or a match for wildcards in the
// last name. Trailing spaces and dots are ignored. Returns false for a null or empty path and for
// one that ends in a backslash, such as "C:\".
bool FileExists(const wchar_t* path);

}  // namespace kelvo
