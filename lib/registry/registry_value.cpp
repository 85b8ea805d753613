#include "lib/registry/registry_value.h"

#include "lib/registry/registry_key.h"

namespace kelvo {

bool RegistryValueExists(HKEY root, const wchar_t* subkey, const wchar_t* valueName) {
  OwnedRegistryKey key;
  DWORD type = REG_NONE;
  DWORD size = 0;
  return OpenRegistryKey(root, subkey, KEY_READ, key) == ERROR_SUCCESS &&
         RegQueryValueExW(key.get(), valueName, nullptr, &type, nullptr, &size) == ERROR_SUCCESS;
}

LSTATUS WriteRegistryValue(HKEY root, const wchar_t* subkey, const wchar_t* valueName, DWORD type,
                           const void* data, DWORD size) {
  OwnedRegistryKey key;
  if (CreateRegistryKey(root, subkey, key) != ERROR_SUCCESS) {
    return -1;
  }
  return RegSetValueExW(key.get(), valueName, 0, type, static_cast<const BYTE*>(data), size);
}

LSTATUS RegistryDeleteValue(HKEY root, const wchar_t* subkey, const wchar_t* valueName) {
  OwnedRegistryKey key;
  if (OpenRegistryKey(root, subkey, KEY_SET_VALUE, key) != ERROR_SUCCESS) {
    return -1;
  }
  return RegDeleteValueW(key.get(), valueName) == ERROR_SUCCESS ? ERROR_SUCCESS : -1;
}

}  // namespace kelvo
