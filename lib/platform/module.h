#pragma once

#include <windows.h>

#include "lib/platform/owned.h"

namespace kelvo {

namespace internal {

struct ModuleTraits {
  using Handle = HMODULE;
  static Handle None() { return nullptr; }
  static void Close(Handle handle) { FreeLibrary(handle); }
};

}  // namespace internal

// Owns the handle of a library that this process has loaded, and frees the library with
// FreeLibrary. The handle is null when no library is owned. For a module that is only looked up
// (GetModuleHandleW), use a plain HMODULE.
//   // LoadSystemLibrary is in lib/platform/system_library.h.
//   const OwnedModule library = LoadSystemLibrary(L"secur32.dll");
//   auto* const getName = KELVO_FIND_FUNCTION(library.get(), GetUserNameExW);
//   const bool isKnown = getName != nullptr && getName(NameDisplay, name, &size) != FALSE;
using OwnedModule = Owned<internal::ModuleTraits>;

// Returns the function that `module` exports as `name` (GetProcAddress). If `module` has no such
// export, returns null, and GetLastError returns the error of GetProcAddress. If `module` is null,
// returns null and does not change the last error. After a failed load, GetLastError
// therefore still returns the error of the load.
template <typename Function>
Function* FindFunction(HMODULE module, const char* name) {
  return module == nullptr
             ? nullptr
             : reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

}  // namespace kelvo

// Calls FindFunction for a function that a header declares. `function` is the name of both the
// declaration and the export. The result is a pointer to a function of the declared type.
#define KELVO_FIND_FUNCTION(module, function) \
  ::kelvo::FindFunction<decltype(::function)>((module), #function)
