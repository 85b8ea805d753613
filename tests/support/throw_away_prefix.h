#pragma once

#include <windows.h>

#include <cstdio>

namespace kelvo::test {

// Ends this program unless it runs in a throw-away Wine prefix, which scripts/wine marks with a
// file. Tests that change HKEY_LOCAL_MACHINE, a certificate store or the Windows folder call
// this function first, in case somebody starts the test program on a real computer.
inline void RequireThrowAwayPrefix() {
  static const bool isThrownAway =
      GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr &&
      GetFileAttributesW(L"C:\\throw-away prefix") != INVALID_FILE_ATTRIBUTES;
  if (!isThrownAway) {
    std::fputs("This program would change the computer: run it only with scripts/wine.\n", stderr);
    std::fflush(stderr);
    TerminateProcess(GetCurrentProcess(), ERROR_ACCESS_DENIED);
  }
}

}  // namespace kelvo::test
