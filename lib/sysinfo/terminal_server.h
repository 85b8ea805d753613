#pragma once

#include "lib/registry/registry_key.h"

namespace kelvo {

// Returns true when the running Windows has the Terminal Services suite. On NT 5.0 and later, calls
// VerifyVersionInfoA with a mask from VerSetConditionMask. Both are looked up at run time; when
// either is missing, returns false. On NT 4.0 and earlier, returns what IsProductSuiteInstalled
// returns for "Terminal Server". Always false on Windows 9x. Each call asks GetVersion again.
bool IsWinNTTerminalServer();

// Returns true when the value "ProductSuite" (REG_MULTI_SZ) of HKEY_LOCAL_MACHINE
// "System\CurrentControlSet\Control\ProductOptions" lists `suiteName`, compared case-sensitively
// with lstrcmpW. The list ends at its first empty string, or at the end of the data when no
// terminator is stored. When the number of bytes is odd, the last byte becomes one more character.
// Returns false for a null or empty name, for a value of another type and for a value that cannot
// be read. Opens the key for KEY_READ | RegistryAccessFlags.
bool IsProductSuiteInstalled(const wchar_t* suiteName);

}  // namespace kelvo
