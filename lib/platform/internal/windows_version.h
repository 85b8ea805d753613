#pragma once

#include <windows.h>

namespace kelvo::internal {

// Returns what GetVersionExW reports in the 276-byte OSVERSIONINFOW, queried on every call. All
// fields are 0 when that fails. Windows 8.1 and later report 6.2 to a program whose manifest does
// not name them.
OSVERSIONINFOW QueryWindowsVersion();

// Returns true for NT major.minor and later.
bool IsNtAtLeast(const OSVERSIONINFOW& version, DWORD major, DWORD minor);

}  // namespace kelvo::internal
