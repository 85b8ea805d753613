#pragma once

#include <windows.h>

#include "lib/string/wstring.h"

namespace kelvo::internal {

// Appends the name of an NT release with its edition and suites, and for NT 5.2 and 6.x the
// processor architecture. Appends nothing when the major version is above 6. Calls GetSystemMetrics
// for NT 5.1 and 5.2; after an exception there, appends a note with a plainer name. Calls
// GetProductInfo (looked up at run time) for NT 6.x; does not catch an exception there.
void AppendNtName(const OSVERSIONINFOEXW& version, WORD architecture, WString& text);

}  // namespace kelvo::internal
