#pragma once

#include "lib/registry/registry_key.h"

namespace kelvo {

// Returns true when the running Windows has the Terminal Services suite. On NT 5.0 and later,
// asks VerifyVersionInfoA with a mask from VerSetConditionMask (both looked up at run time; false
// when one is missing). On NT 4.0, the product suite "Terminal Server" decides. Always false on
// Windows 9x. Calls GetVersion each time.
bool IsWinNTTerminalServer();

// Returns true when the value "ProductSuite" (REG_MULTI_SZ) of HKEY_LOCAL_MACHINE
// "System\CurrentControlSet\Control\ProductOptions" lists `suiteName`, compared case-sensitively
// with lstrcmpW. The list ends at its first empty string, or with the data when no terminator is
// stored. An odd last byte becomes one more character. Returns false for a null or empty name, for
// a value of another type and for one that cannot be read. Opens the key for KEY_READ |
// RegistryAccessFlags.
bool IsProductSuiteInstalled(const wchar_t* suiteName);

}  // namespace kelvo
