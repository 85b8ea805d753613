#pragma once

#include "lib/registry/registry_key.h"

namespace kelvo {

// Returns true when the running Windows has the Terminal Services suite. On NT 5.0 and later, calls
// VerifyVersionInfoA with a mask from VerSetConditionMask. Both functions are looked up at run
// time; when one of them is missing, returns false. On NT 4.0 and earlier, returns the result of
// IsProductSuiteInstalled for "Terminal Server". On Windows 9x, returns false. The version is not
// cached: each call of this function calls GetVersion.
bool IsWinNTTerminalServer();

// Returns true when one of the strings in a registry value equals `suiteName` (lstrcmpW, which is
// case-sensitive). The value is "ProductSuite" (REG_MULTI_SZ) of the key
// "System\CurrentControlSet\Control\ProductOptions" in HKEY_LOCAL_MACHINE. The list of strings ends
// at its first empty string, or at the end of the data when no terminator is stored. When the
// number of bytes is odd, the last byte counts as one more character. Returns false when
// `suiteName` is null or empty, when the value has another type, and when the value cannot be read.
// Opens the key with the access mask KEY_READ | RegistryAccessFlags.
bool IsProductSuiteInstalled(const wchar_t* suiteName);

}  // namespace kelvo
