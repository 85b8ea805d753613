#pragma once

#include <windows.h>

namespace kelvo::internal {

// Returns the version that GetVersionExW reports in its 276-byte record, asked anew on each call;
// every field is 0 when the call fails. Without a manifest that names newer releases, Windows 8.1
// and later report 6.2.
OSVERSIONINFOW QueryWindowsVersion();

// Returns true for NT major.minor and later.
bool IsNtAtLeast(const OSVERSIONINFOW& version, DWORD major, DWORD minor);

}  // namespace kelvo::internal
