#include "lib/sysinfo/windows_release.h"

#include "lib/platform/internal/windows_version.h"

namespace kelvo {

namespace {

bool Is9x(const OSVERSIONINFOW& version) {
  return version.dwPlatformId == VER_PLATFORM_WIN32_WINDOWS;
}

bool IsNtAtLeast(DWORD major, DWORD minor) {
  return internal::IsNtAtLeast(internal::QueryWindowsVersion(), major, minor);
}

}  // namespace

bool IsWin95() {
  const OSVERSIONINFOW version = internal::QueryWindowsVersion();
  return Is9x(version) && version.dwMinorVersion == 0;
}
bool IsWin98() {
  const OSVERSIONINFOW version = internal::QueryWindowsVersion();
  return Is9x(version) && version.dwMinorVersion > 0;
}
bool IsWinNT() { return IsNtAtLeast(0, 0); }
bool IsWin2000() { return IsNtAtLeast(5, 0); }
bool IsWinXP() { return IsNtAtLeast(5, 1); }
bool IsWinVista() { return IsNtAtLeast(6, 0); }
bool IsWin7() { return IsNtAtLeast(6, 1); }
bool IsWin8() { return IsNtAtLeast(6, 2); }
bool IsWinServer2003() { return IsNtAtLeast(5, 2); }
bool IsWinServer2008() { return IsWinVista(); }
bool IsWinServer2012() { return IsWin8(); }

}  // namespace kelvo
