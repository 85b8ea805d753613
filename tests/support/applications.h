#pragma once

#include <windows.h>

#include <string>

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

}  // namespace kelvo::test
