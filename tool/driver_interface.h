#pragma once

#include <windows.h>

#include "lib/platform/module.h"
#include "lib/string/wstring.h"
#include "tool/difxapi.h"

namespace kelvo {

// The driver installation interface, for as long as it is needed: destroying this object frees the
// library.
struct DriverInterface {
  OwnedModule library;
  decltype(&SetDifxLogCallbackW) setLogCallback = nullptr;
  decltype(&DriverPackageInstallW) installPackage = nullptr;
};

// Loads "difxapi.dll" from its LibraryPath and looks its functions up. Returns 0, or the code that
// says why the library or a function is missing; nothing may be called then. The library is loaded
// by its full path: it is a KnownDLL, and by its bare name Windows would load its own copy.
DWORD BindDriverInterface(DriverInterface& driver);

// The interface's log callback: reports the event as one "INFO: " line. A null description counts
// as empty; `context` is unused. May be called on any thread. No exception leaves it: when memory
// runs out, the line is dropped.
void CALLBACK DifxLogCallback(DIFXAPI_LOG event, DWORD error, PCWSTR description,
                              PVOID context) noexcept;

}  // namespace kelvo
