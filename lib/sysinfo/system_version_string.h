#pragma once

#include "lib/string/wstring.h"

namespace kelvo {

// Returns one line that names the running Windows with its edition and numbers, such as "Windows 7
// Professional x64 (6.1.7601 Service Pack 1)"; empty for a platform that is neither Win32s, Windows
// 9x nor NT.
//   - Rests on GetVersionExW, which reports 6.2 to a program whose manifest does not name Windows
//     8.1 or later: such a program reads "Windows 8" everywhere from there on, or "Windows Server
//     2012". From Windows 10 on there is no name, only the numbers.
//   - Asks GetNativeSystemInfo (looked up at run time, else GetSystemInfo) for the processor,
//     GetSystemMetrics on NT 5.1 and 5.2, GetProductInfo (looked up at run time) on NT 6.
//   - When GetVersionExW does not fill its extended record, as on Windows NT 4.0 before Service
//     Pack 6, the product comes from HKEY_LOCAL_MACHINE
//     "SYSTEM\CurrentControlSet\Control\ProductOptions", value "ProductType"; when that cannot be
//     read, its key stays open. With Service Pack 6 of NT 4.0 the key
//     "SOFTWARE\Microsoft\Windows NT\CurrentVersion\Hotfix\Q246009" means 6a. Both keys are opened
//     for KEY_QUERY_VALUE.
//   - The line has a note where GetVersionExW failed, where the product could not be read, and
//     where a query ended in an exception. Every other query that fails, or that this Windows
//     lacks, leaves its piece out. Only the memory for that last note may make it throw.
WString GetSystemVersionString();

// Returns the running Windows as "(major.minor.build)" (GetVersionExW, which reports 6.2 to a
// program whose manifest does not name Windows 8.1 or later), with the low 16 bits of the build
// number; "0.0.0.0" when that fails or memory runs out.
WString GetSystemVersionNumbers();

}  // namespace kelvo
