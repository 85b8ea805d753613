#include "lib/registry/mui_cache_key.h"

#include "lib/platform/internal/windows_version.h"

namespace kelvo {

WString GetMuiCacheKeyName() {
  const OSVERSIONINFOW version = internal::QueryWindowsVersion();
  if (internal::IsNtAtLeast(version, 6, 0)) {
    return L"Software\\Classes\\Local Settings\\Software\\Microsoft\\Windows\\Shell\\MuiCache";
  }
  return internal::IsNtAtLeast(version, 5, 1)
             ? L"Software\\Microsoft\\Windows\\ShellNoRoam\\MUICache"
             : L"";
}

}  // namespace kelvo
