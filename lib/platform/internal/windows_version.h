#pragma once

#include <windows.h>

namespace kelvo::internal {

// Returns the OSVERSIONINFOW (276 bytes) that GetVersionExW fills. The result is not cached.
// When GetVersionExW fails, all fields are 0. On Windows 8.1 and later, GetVersionExW reports
// version 6.2 to a program whose manifest does not list Windows 8.1 or later.
OSVERSIONINFOW QueryWindowsVersion();

// Returns true when `version` is Windows NT `major`.`minor` or later.
bool IsNtAtLeast(const OSVERSIONINFOW& version, DWORD major, DWORD minor);

}  // namespace kelvo::internal
