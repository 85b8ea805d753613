#pragma once

#include "lib/string/wstring.h"

namespace kelvo {

// Returns one line that names the running Windows with its edition and numbers, such as "Windows 7
// Professional x64 (6.1.7601 Service Pack 1)"; empty for a platform that is neither Win32s, Windows
// 9x nor NT.
//   - Uses GetVersionExW, which on Windows 8.1 and later reports 6.2 to a program whose manifest
//     does not name 8.1 or later: there, such a program reads "Windows 8" or "Windows Server 2012".
//     On Windows 10 and later, a program whose manifest names Windows 10 reads only the numbers,
//     without a name.
//   - Calls GetNativeSystemInfo (looked up at run time, else GetSystemInfo) for the processor,
//     GetSystemMetrics on NT 5.1 and 5.2, GetProductInfo (looked up at run time) on NT 6.
//   - When GetVersionExW does not fill OSVERSIONINFOEXW, as on Windows NT 4.0 before Service Pack
//     6, the product comes from HKEY_LOCAL_MACHINE
//     "SYSTEM\CurrentControlSet\Control\ProductOptions", value "ProductType". When the value cannot
//     be read, the key stays open. On NT 4.0 with Service Pack 6, the key
//     "SOFTWARE\Microsoft\Windows NT\CurrentVersion\Hotfix\Q246009" means 6a. Both keys are opened
//     for KEY_QUERY_VALUE.
//   - The line has a note when GetVersionExW fails, when the product cannot be read, and when a
//     query ends in an exception. Any other query that fails, or that this Windows lacks, only
//     leaves out its part. Throws only when there is no memory for the note on an exception.
WString GetSystemVersionString();

// Returns the running Windows as "(major.minor.build)" (GetVersionExW, which reports 6.2 to a
// program whose manifest does not name Windows 8.1 or later), with the low 16 bits of the build
// number; "0.0.0.0" when that fails or memory runs out.
WString GetSystemVersionNumbers();

}  // namespace kelvo
