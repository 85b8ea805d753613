#pragma once

#include "lib/string/wstring.h"

namespace kelvo {

// Both may let std::bad_alloc out when no memory is left for the text itself.

// Returns one line that names the running Windows with its edition and numbers, such as "Windows 7
// Professional x64 (6.1.7601 Service Pack 1)"; empty for a platform that is neither Win32s, Windows
// 9x nor NT.
//   - Rests on GetVersionExW, which reports 6.2 to a program whose manifest does not name Windows
//     8.1 or later: such a program reads "Windows 8" everywhere from there on. From Windows 10 on
//     there is no name, only the numbers.
//   - Asks GetNativeSystemInfo (looked up at run time, else GetSystemInfo) for the processor,
//     GetSystemMetrics on NT 5.1 and 5.2, GetProductInfo (looked up at run time) on NT 6.
//   - Windows NT 4.0 is told from HKEY_LOCAL_MACHINE
//     "SYSTEM\CurrentControlSet\Control\ProductOptions", value "ProductType", when GetVersionExW
//     does not fill its extended record, and from the key "SOFTWARE\Microsoft\Windows
//     NT\CurrentVersion\Hotfix\Q246009" when it has Service Pack 6. Both need KEY_QUERY_VALUE. When
//     "ProductType" cannot be read, its key stays open.
//   - A question that fails, or ends in an exception, leaves a text that says so in the line.
WString GetSystemVersionString();

// Returns the running Windows as "(major.minor.build)" (GetVersionExW, which reports 6.2 to a
// program whose manifest does not name Windows 8.1 or later), with the low 16 bits of the build
// number; "0.0.0.0" when that fails.
WString GetSystemVersionNumbers();

}  // namespace kelvo
