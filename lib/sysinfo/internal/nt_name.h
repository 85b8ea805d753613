#pragma once

#include <windows.h>

#include "lib/string/wstring.h"

namespace kelvo::internal {

// Appends the name of an NT release. From NT 5.1 on, the name can include the edition. For NT 5.2
// and 6.x, it can also include suites, and includes the processor architecture. Appends nothing
// when the major version is above 6.
//   - For NT 5.1 and 5.2, calls GetSystemMetrics. When this call causes an exception, appends a
//     note and a less specific name.
//   - For NT 6.x, calls GetProductInfo (looked up at run time), and does not catch exceptions from
//     that function.
void AppendNtName(const OSVERSIONINFOEXW& version, WORD architecture, WString& text);

}  // namespace kelvo::internal
