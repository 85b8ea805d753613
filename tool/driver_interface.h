#pragma once

#include <windows.h>

#include "lib/platform/module.h"
#include "lib/string/wstring.h"
#include "tool/difxapi.h"

namespace kelvo {

// The loaded library "difxapi.dll" and two of its functions. Destroying the object frees the
// library; do not call the functions after that.
struct DriverInterface {
  OwnedModule library;
  decltype(&SetDifxLogCallbackW) setLogCallback = nullptr;
  decltype(&DriverPackageInstallW) installPackage = nullptr;
};

// Loads "difxapi.dll" and finds both functions of DriverInterface. Returns 0, or an error code when
// the library cannot be loaded or lacks a function. After an error, neither function may be called.
// Uses the full path from LibraryPath (tool/library_search.h), so that a copy in the program's
// folder is preferred. If LoadLibraryW got only the file name, it would always load the copy in the
// system directory, because the library is a KnownDLL.
DWORD BindDriverInterface(DriverInterface& driver);

// The callback for SetDifxLogCallbackW: prints the event as one line that begins with "INFO: ". A
// null description counts as empty; `context` is unused. May be called on any thread. Never throws:
// when memory runs out, prints nothing.
void CALLBACK DifxLogCallback(DIFXAPI_LOG event, DWORD error, PCWSTR description,
                              PVOID context) noexcept;

}  // namespace kelvo
