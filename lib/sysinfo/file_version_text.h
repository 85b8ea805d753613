#pragma once

#include "lib/string/wstring.h"

namespace kelvo {

// Returns the text "FileVersion" of a file's version resource in the resource's first translation
// (GetFileVersionInfoW, VerQueryValueW). Empty for a null path and when there is no resource, no
// translation or no such text; a text that claims to reach past the resource is cut at its end. May
// let std::bad_alloc out.
WString GetFileVersionText(const wchar_t* path);

}  // namespace kelvo
