#pragma once

namespace kelvo {

// Returns true when FindFirstFileW finds `path`: a file, a folder, or a match for wildcards in the
// last name. Blanks and dots at the end are not part of a name. Returns false for a null or empty
// path and for a root such as "C:\".
bool FileExists(const wchar_t* path);

}  // namespace kelvo
