#pragma once

#include "lib/string/wstring.h"

namespace kelvo {

// Returns the value of the string "FileVersion" for the first translation in a file's version
// resource (GetFileVersionInfoW, VerQueryValueW). Returns an empty string for a null path, and
// when there is no resource, no translation or no such string. A value that extends past the
// resource is cut at the resource's end.
WString GetFileVersionText(const wchar_t* path);

}  // namespace kelvo
