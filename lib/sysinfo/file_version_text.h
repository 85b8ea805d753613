#pragma once

#include "lib/string/wstring.h"

namespace kelvo {

// The text "FileVersion" of a file's version resource, in the resource's first translation; empty
// when there is no resource, no translation or no such text (GetFileVersionInfoW, VerQueryValueW).
WString GetFileVersionText(const wchar_t* path);

}  // namespace kelvo
