#pragma once

#include <windows.h>

#include "lib/string/wstring.h"

namespace kelvo {

// What an INF file says about its driver, with the strings that it refers to inserted.
struct InfVersion {
  DWORD error = ERROR_SUCCESS;  // why an entry is missing below
  WString provider;             // "Provider" of the section "Version"
  WString driverVersion;        // "DriverVer" of it: date and version
};

// Reads the section "Version" of an INF file (SetupGetLineTextW). Loads setupapi.dll and frees it.
InfVersion ReadInfVersion(const wchar_t* infPath);

}  // namespace kelvo
