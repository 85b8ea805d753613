#pragma once

#include "lib/string/wstring.h"

namespace kelvo {

// One line that names the running Windows, such as "Windows 7 Professional x64 (6.1.7601 Service
// Pack 1)": its release, edition and numbers as far as they are known. Empty for an unknown
// platform; failures are told within the line. Rests on GetVersionExW, GetSystemMetrics,
// GetNativeSystemInfo and GetProductInfo (both looked up at run time) and, for NT 4.0, on
// HKEY_LOCAL_MACHINE "SYSTEM\CurrentControlSet\Control\ProductOptions", which stays open when its
// "ProductType" cannot be read. A program without a manifest that names Windows 8.1 or later is
// told 6.2 there. Windows 10 has no name, only its numbers.
WString GetSystemVersionString();

// The running Windows as "(major.minor.build)" (GetVersionExW); "0.0.0.0" when that fails.
WString GetSystemVersionNumbers();

}  // namespace kelvo
