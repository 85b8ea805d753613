#pragma once

#include <windows.h>

#include "tests/support/replaced_import.h"

namespace kelvo::test {

// Makes GetVersionExW report the given version until the returned object is destroyed. The low word
// of the reported build number is 1381. Example:
//   const auto vista = PretendWindows(VER_PLATFORM_WIN32_NT, 6, 0);
inline auto PretendWindows(DWORD platform, DWORD major, DWORD minor,
                           const wchar_t* servicePack = L"") {
  const auto report = [=](auto, OSVERSIONINFOW* record) -> BOOL {
    const DWORD size = record->dwOSVersionInfoSize;
    *record = {size, major, minor, 0xABCD0000 + 1381, platform, L""};
    lstrcpyW(record->szCSDVersion, servicePack);
    // For 4.x, rejects OSVERSIONINFOEXW, as NT 4.0 before Service Pack 6 does.
    return major != 4 || size == sizeof(*record);
  };
  return ReplaceImport<decltype(::GetVersionExW)>("GetVersionExW", report);
}

}  // namespace kelvo::test
