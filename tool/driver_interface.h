#pragma once

#include <windows.h>

#include "lib/platform/module.h"
#include "lib/string/wstring.h"
#include "tool/difxapi.h"

namespace kelvo {

// The loaded driver installation interface. Destroying the object frees the library, after which
// the functions must not be called.
struct DriverInterface {
  OwnedModule library;
  decltype(&SetDifxLogCallbackW) setLogCallback = nullptr;
  decltype(&DriverPackageInstallW) installPackage = nullptr;
};

// Loads "difxapi.dll" from its LibraryPath and gets the addresses of its functions. Returns 0, or
// an error code when the library or a function is missing; then neither function may be called.
// Loads the library by its full path because it is a KnownDLL: given the bare name, Windows would
// always load the system's copy.
DWORD BindDriverInterface(DriverInterface& driver);

// The interface's log callback: reports the event as one "INFO: " line. A null description counts
// as empty; `context` is unused. Any thread may call it. It never throws: when memory runs out, it
// drops the line.
void CALLBACK DifxLogCallback(DIFXAPI_LOG event, DWORD error, PCWSTR description,
                              PVOID context) noexcept;

}  // namespace kelvo
