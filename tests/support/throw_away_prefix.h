#pragma once

#include <windows.h>

#include <cstdio>

namespace kelvo::test {

// Ends this program unless it runs in a throw-away Wine prefix, which scripts/wine marks. Whatever
// changes HKEY_LOCAL_MACHINE, a certificate store, Windows' folder or WinSta0 calls this first: a
// person may start any test program by hand, on a computer that matters.
inline void RequireThrowAwayPrefix() {
  static const bool isThrownAway =
      GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr &&
      GetFileAttributesW(L"C:\\throw-away prefix") != INVALID_FILE_ATTRIBUTES;
  if (!isThrownAway) {
    std::fputs("This would change the computer: it runs by scripts/wine only.\n", stderr);
    std::fflush(stderr);
    TerminateProcess(GetCurrentProcess(), ERROR_ACCESS_DENIED);
  }
}

}  // namespace kelvo::test
