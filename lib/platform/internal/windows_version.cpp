#include "lib/platform/internal/windows_version.h"

#include <tuple>

namespace kelvo::internal {

OSVERSIONINFOW QueryWindowsVersion() {
  OSVERSIONINFOW version{};
  version.dwOSVersionInfoSize = sizeof(version);
  if (GetVersionExW(&version) == FALSE) {
    return {};
  }
  return version;
}

bool IsNtAtLeast(const OSVERSIONINFOW& version, DWORD major, DWORD minor) {
  return version.dwPlatformId == VER_PLATFORM_WIN32_NT &&
         std::tie(version.dwMajorVersion, version.dwMinorVersion) >= std::tie(major, minor);
}

}  // namespace kelvo::internal
