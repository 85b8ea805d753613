#pragma once

#include <windows.h>

#include "lib/string/wstring.h"

namespace kelvo::internal {

// Appends the name of a Windows of the NT line with its edition and suites, and for NT 5.2 and 6
// the processor; nothing for a release after NT 6. Asks GetSystemMetrics for NT 5.1 and 5.2; an
// exception there is caught, and a note of it with a plainer name is appended. Asks GetProductInfo
// (looked up at run time) for NT 6; an exception there is not caught.
void AppendNtName(const OSVERSIONINFOEXW& version, WORD architecture, WString& text);

}  // namespace kelvo::internal
