#include "lib/registry/registry_write_access.h"

#include "lib/platform/internal/process_elevation.h"
#include "lib/platform/internal/windows_version.h"
#include "lib/registry/registry_key.h"
#include "lib/registry/registry_number.h"

namespace kelvo {

int RegistryCanWrite(HKEY root, const wchar_t* subkey) {
  constexpr const wchar_t* kProbe = L"RegCheck";
  if (internal::IsNtAtLeast(internal::QueryWindowsVersion(), 6, 0) &&
      !internal::IsProcessElevated()) {
    return 1;
  }
  if (RegistryWriteDword(root, subkey, kProbe, 1) != ERROR_SUCCESS) {
    return 1;
  }
  OwnedRegistryKey key;
  if (OpenRegistryKey(root, subkey, KEY_WRITE, key) == ERROR_SUCCESS) {
    RegDeleteValueW(key.get(), kProbe);
  }
  return 0;
}

}  // namespace kelvo
