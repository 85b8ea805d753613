#include "lib/registry/registry_view.h"

#include "lib/platform/module.h"

namespace kelvo {

bool EnableRegistryReflection(HKEY key, bool enable) {
  const HMODULE library = GetModuleHandleW(L"Advapi32.DLL");
  auto* const change = enable ? KELVO_FIND_FUNCTION(library, RegEnableReflectionKey)
                              : KELVO_FIND_FUNCTION(library, RegDisableReflectionKey);
  return change != nullptr && change(key) == ERROR_SUCCESS;
}

REGSAM GetRegistryViewAccess(int view) {
  // Only 64-bit Windows has two views. The library is built for 64-bit Windows only, so this
  // function does not check whether Windows is 64-bit.
  switch (view) {
    case 1:
      return KEY_WOW64_32KEY;
    case 2:
      return KEY_WOW64_64KEY;
    default:
      return 0;
  }
}

}  // namespace kelvo
