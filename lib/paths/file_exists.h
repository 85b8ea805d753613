#pragma once

namespace kelvo {

// Returns true when FindFirstFileW finds `path`: a file or a folder or, with wildcards in the last
// component, any match. Ignores trailing spaces and dots. Returns false for a null or empty path
// and for one that ends in a backslash, such as "C:\".
bool FileExists(const wchar_t* path);

}  // namespace kelvo
