#pragma once

#include <windows.h>

namespace kelvo::internal {

// The version that GetVersionExW reports into its 276-byte record, asked afresh on each call; every
// field is zero when the call fails. Without a manifest that names newer releases, Windows 8.1 and
// later report 6.2.
OSVERSIONINFOW QueryWindowsVersion();

// True on the NT platform from major.minor on.
bool IsNtAtLeast(const OSVERSIONINFOW& version, DWORD major, DWORD minor);

}  // namespace kelvo::internal
