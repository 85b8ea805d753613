#pragma once

#include <windows.h>

namespace kelvo::internal {

// Returns what GetVersionExW reports in the 276-byte OSVERSIONINFOW, queried on every call. All
// fields are 0 when that fails. On Windows 8.1 and later, it reports 6.2 to a program whose
// manifest does not name 8.1 or later.
OSVERSIONINFOW QueryWindowsVersion();

// Returns true for NT major.minor and later.
bool IsNtAtLeast(const OSVERSIONINFOW& version, DWORD major, DWORD minor);

}  // namespace kelvo::internal
