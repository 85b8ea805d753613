#pragma once

namespace kelvo {

// Returns true when FindFirstFileW finds a file or folder with this path. If the last component has
// wildcards, any match counts. Ignores trailing spaces and dots, unless the path begins with
// "\\?\". Returns false for a null or empty path and for a path that ends in a backslash, such as
// "C:\".
bool FileExists(const wchar_t* path);

}  // namespace kelvo
