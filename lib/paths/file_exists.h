#pragma once

namespace kelvo {

// True when FindFirstFileW finds something under `path`: a file, a folder, or a match for wildcards
// in the last name. Blanks and dots at the end are not part of a name. False for null and empty
// paths and for a root such as "C:\".
bool FileExists(const wchar_t* path);

}  // namespace kelvo
