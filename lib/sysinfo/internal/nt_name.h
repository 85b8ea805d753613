#pragma once

#include <windows.h>

#include "lib/string/wstring.h"

namespace kelvo::internal {

// Appends the name of an NT release with its edition and suites and, for NT 5.2 and 6.x, with the
// processor architecture. Appends nothing when the major version is above 6.
//   - For NT 5.1 and 5.2, calls GetSystemMetrics. When that causes an exception, appends a note and
//     a less specific name.
//   - For NT 6.x, calls GetProductInfo (looked up at run time). Exceptions from it are not caught.
void AppendNtName(const OSVERSIONINFOEXW& version, WORD architecture, WString& text);

}  // namespace kelvo::internal
