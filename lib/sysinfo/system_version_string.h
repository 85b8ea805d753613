#pragma once

#include "lib/string/wstring.h"

namespace kelvo {

// Returns one line with the name, the edition and the version numbers of the running Windows, such
// as "Windows 7 Professional x64 (6.1.7601 Service Pack 1)". For Win32s and Windows 9x, the line
// has no version numbers. For an unknown platform or an unknown version of Windows 9x, it is empty.
//   - The version comes from GetVersionExW. On Windows 8.1 and later, GetVersionExW reports 6.2 to
//     a program whose manifest does not declare support for Windows 8.1 or later. The line then
//     says "Windows 8" or "Windows Server 2012". On Windows 10 and later, if the manifest declares
//     support for Windows 10, the line has only the version numbers, without a name.
//   - The processor architecture comes from GetNativeSystemInfo (looked up at run time) or, when
//     Windows lacks that function, from GetSystemInfo.
//   - To find the edition, this function calls GetSystemMetrics on NT 5.1 and 5.2, and
//     GetProductInfo (looked up at run time) on NT 6.
//   - When GetVersionExW does not accept OSVERSIONINFOEXW, as on Windows NT 4.0 before Service Pack
//     6, the product type comes from the registry value "ProductType" in the key
//     HKEY_LOCAL_MACHINE\SYSTEM\CurrentControlSet\Control\ProductOptions. When the value cannot be
//     read, the handle of this key is not closed.
//   - On NT 4.0 with Service Pack 6, the line says "Service Pack 6a" when the registry key
//     HKEY_LOCAL_MACHINE\SOFTWARE\Microsoft\Windows NT\CurrentVersion\Hotfix\Q246009 can be opened.
//   - Both registry keys are opened with the access right KEY_QUERY_VALUE.
//   - The line contains an error message when GetVersionExW fails, when the product type cannot be
//     read, or when an exception ends a query. When any other query fails, the line lacks the
//     result of that query and contains no error message. The same applies when Windows lacks
//     GetProductInfo.
//   - This function catches exceptions. It throws only when memory runs out while it adds the error
//     message about an exception.
WString GetSystemVersionString();

// Returns the version of the running Windows as "(major.minor.build)", with the low 16 bits of the
// build number. Uses GetVersionExW, which on Windows 8.1 and later reports 6.2 to a program whose
// manifest does not declare support for Windows 8.1 or later. Returns "0.0.0.0" when GetVersionExW
// fails or an exception occurs.
WString GetSystemVersionNumbers();

}  // namespace kelvo
