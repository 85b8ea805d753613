#pragma once

#include <windows.h>

#include <string>

#include "tests/support/certificate_store.h"
#include "tests/support/throw_away_prefix.h"
#include "tool/dependent_applications.h"

namespace kelvo::test {

// The list of dependent applications in the registry; "none" when there is no such value.
inline std::wstring Applications() {
  wchar_t list[2048];
  DWORD size = sizeof(list);
  const bool isThere = RegGetValueW(HKEY_LOCAL_MACHINE, ServiceParametersKey, L"applications",
                                    RRF_RT_REG_SZ, nullptr, list, &size) == ERROR_SUCCESS;
  return isThere ? list : L"none";
}

// While it lives, no application is recorded and none of this suite's certificates is in a store.
// Then the list that was there is put back, and what the test imported is removed.
struct CleanMachine {
  CleanMachine() {
    RequireThrowAwayPrefix();
    hadList = RegGetValueW(HKEY_LOCAL_MACHINE, ServiceParametersKey, L"applications",
                           RRF_RT_ANY | RRF_NOEXPAND, &type, list, &size) == ERROR_SUCCESS;
    Clear();
  }
  CleanMachine(const CleanMachine&) = delete;
  ~CleanMachine() {
    Clear();
    if (hadList) {
      RegSetKeyValueW(HKEY_LOCAL_MACHINE, ServiceParametersKey, L"applications", type, list, size);
    }
  }
  static void Clear() {
    RegDeleteKeyValueW(HKEY_LOCAL_MACHINE, ServiceParametersKey, L"applications");
    RemoveTestCertificates();
  }

  BYTE list[0x10000];
  DWORD size = sizeof(list);
  DWORD type = 0;
  bool hadList = false;
};

}  // namespace kelvo::test
