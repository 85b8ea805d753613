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

// Loads the "difxapi.dll" in the program's own folder when that file exists, otherwise the one in
// the system directory, and looks its functions up. Returns false when the library or a function is
// missing; GetLastError then tells why, and nothing may be called. The library is named by its full
// path: Windows gives its own copy, a known library, to everyone who asks for the bare name.
bool BindDriverInterface(DriverInterface& driver);

// The interface's log callback: reports the event as one "INFO: " line. A null description counts
// as empty; `context` is not used. May be called on any thread. No exception leaves it: when memory
// is short, the line is dropped.
void CALLBACK DifxLogCallback(DIFXAPI_LOG event, DWORD error, PCWSTR description,
                              PVOID context) noexcept;

}  // namespace kelvo
