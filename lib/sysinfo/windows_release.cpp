#include "lib/sysinfo/windows_release.h"

#include "lib/platform/internal/windows_version.h"

namespace kelvo {

namespace {

bool Is9x(const OSVERSIONINFOW& version) {
  return version.dwPlatformId == VER_PLATFORM_WIN32_WINDOWS;
}

}  // namespace

bool IsWin95(const OSVERSIONINFOW& version) { return Is9x(version) && version.dwMinorVersion == 0; }
bool IsWin98(const OSVERSIONINFOW& version) { return Is9x(version) && version.dwMinorVersion > 0; }
bool IsWinNT(const OSVERSIONINFOW& version) {
  return version.dwPlatformId == VER_PLATFORM_WIN32_NT;
}
bool IsWin2000(const OSVERSIONINFOW& version) { return internal::IsNtAtLeast(version, 5, 0); }
bool IsWinXP(const OSVERSIONINFOW& version) { return internal::IsNtAtLeast(version, 5, 1); }
bool IsWinVista(const OSVERSIONINFOW& version) { return internal::IsNtAtLeast(version, 6, 0); }
bool IsWin7(const OSVERSIONINFOW& version) { return internal::IsNtAtLeast(version, 6, 1); }
bool IsWin8(const OSVERSIONINFOW& version) { return internal::IsNtAtLeast(version, 6, 2); }
bool IsWinServer2003(const OSVERSIONINFOW& version) { return internal::IsNtAtLeast(version, 5, 2); }
bool IsWinServer2008(const OSVERSIONINFOW& version) { return IsWinVista(version); }
bool IsWinServer2012(const OSVERSIONINFOW& version) { return IsWin8(version); }

bool IsWin95() { return IsWin95(internal::QueryWindowsVersion()); }
bool IsWin98() { return IsWin98(internal::QueryWindowsVersion()); }
bool IsWinNT() { return IsWinNT(internal::QueryWindowsVersion()); }
bool IsWin2000() { return IsWin2000(internal::QueryWindowsVersion()); }
bool IsWinXP() { return IsWinXP(internal::QueryWindowsVersion()); }
bool IsWinVista() { return IsWinVista(internal::QueryWindowsVersion()); }
bool IsWin7() { return IsWin7(internal::QueryWindowsVersion()); }
bool IsWin8() { return IsWin8(internal::QueryWindowsVersion()); }
bool IsWinServer2003() { return IsWinServer2003(internal::QueryWindowsVersion()); }
bool IsWinServer2008() { return IsWinServer2008(internal::QueryWindowsVersion()); }
bool IsWinServer2012() { return IsWinServer2012(internal::QueryWindowsVersion()); }

}  // namespace kelvo
