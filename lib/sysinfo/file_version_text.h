#pragma once

#include "lib/string/wstring.h"

namespace kelvo {

// Returns the string "FileVersion" of a file's version resource, in the resource's first
// translation (GetFileVersionInfoW, VerQueryValueW). Empty for a null path, and when there is no
// resource, no translation or no such string. A string that extends past the resource is cut at the
// resource's end.
WString GetFileVersionText(const wchar_t* path);

}  // namespace kelvo
