#pragma once

#include <windows.h>

#include "lib/string/wstring.h"

namespace kelvo::internal {

// Appends the name of the Windows NT release `version` to `text`. Appends nothing when the major
// version is above 6, or is 5 with a minor version above 2.
//   - From NT 5.1 on, the name can include the edition.
//   - For NT 5.2 and 6.x, the name includes the processor architecture, and can include suites.
//   - For NT 5.1 and 5.2, calls GetSystemMetrics. When this call causes an exception, appends a
//     note and the name of the release, but no edition, architecture or suites.
//   - For NT 6.x, calls GetProductInfo (looked up at run time), and does not catch exceptions from
//     that function.
void AppendNtName(const OSVERSIONINFOEXW& version, WORD architecture, WString& text);

}  // namespace kelvo::internal
