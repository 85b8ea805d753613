#pragma once

#include <windows.h>

#include "lib/string/wstring.h"

namespace kelvo {

// What an INF file says of its driver, with the texts that it refers to put in.
struct InfVersion {
  DWORD error = ERROR_SUCCESS;  // why an entry is missing below
  WString provider;             // "Provider" of the section "Version"
  WString driverVersion;        // "DriverVer" of it: date and version
};

// Reads the section "Version" (SetupGetLineTextW). Loads setupapi.dll and frees it again.
InfVersion ReadInfVersion(const wchar_t* infPath);

}  // namespace kelvo
