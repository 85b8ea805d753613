#pragma once

#include <windows.h>

#include "lib/platform/module.h"
#include "tool/difxapi.h"

namespace kelvo {

// The driver installation interface for as long as it is needed: the library is freed with this
// object.
struct DriverInterface {
  OwnedModule library;
  decltype(&SetDifxLogCallbackW) setLogCallback = nullptr;
  decltype(&DriverPackageInstallW) installPackage = nullptr;
};

// Loads "difxapi.dll" from the program's folder, or else the system's, and looks its functions up.
// False when the library or a function is not there; GetLastError then tells why, and nothing may
// be called.
bool BindDriverInterface(DriverInterface& driver);

}  // namespace kelvo
