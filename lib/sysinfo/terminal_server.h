#pragma once

namespace kelvo {

// True when the running Windows has the Terminal Services suite. From NT 5.0 on VerifyVersionInfoA
// decides, with VerSetConditionMask (both looked up at run time; false where one is missing), on NT
// 4.0 the product suite "Terminal Server". Always false on Windows 9x. Asks GetVersion afresh.
bool IsWinNTTerminalServer();

// True when the value "ProductSuite" of HKEY_LOCAL_MACHINE
// "System\CurrentControlSet\Control\ProductOptions" (a REG_MULTI_SZ; needs KEY_READ) lists
// `suiteName`, compared with lstrcmpW, case included. The list ends at its first empty text, or
// with the data when that has no terminators; a last odd byte counts as a unit of its own. False
// for null and empty names, another type and a value that cannot be read.
bool IsProductSuiteInstalled(const wchar_t* suiteName);

}  // namespace kelvo
