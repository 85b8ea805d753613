#include "lib/registry/registry_key.h"

namespace kelvo {

REGSAM RegistryAccessFlags = 0;

LSTATUS OpenRegistryKey(HKEY root, const wchar_t* subkey, REGSAM access, OwnedRegistryKey& key) {
  return RegOpenKeyExW(root, subkey, 0, access | RegistryAccessFlags, key.Receive());
}

LSTATUS CreateRegistryKey(HKEY root, const wchar_t* subkey, OwnedRegistryKey& key) {
  wchar_t noClass[] = L"";
  return RegCreateKeyExW(root, subkey, 0, noClass, REG_OPTION_NON_VOLATILE,
                         KEY_WRITE | RegistryAccessFlags, nullptr, key.Receive(), nullptr);
}

bool RegistryKeyExists(HKEY root, const wchar_t* subkey) {
  OwnedRegistryKey key;
  return OpenRegistryKey(root, subkey, KEY_READ, key) == ERROR_SUCCESS;
}

}  // namespace kelvo
