#include "lib/registry/registry_number.h"

#include "lib/registry/registry_key.h"
#include "lib/registry/registry_value.h"

namespace kelvo {

DWORD RegistryReadDword(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                        DWORD defaultNumber) {
  OwnedRegistryKey key;
  if (OpenRegistryKey(root, subkey, KEY_READ, key) != ERROR_SUCCESS) {
    return defaultNumber;
  }
  DWORD number = 0;
  DWORD type = REG_NONE;
  DWORD size = sizeof(number);
  const LSTATUS status = RegQueryValueExW(key.get(), valueName, nullptr, &type,
                                          reinterpret_cast<BYTE*>(&number), &size);
  return status == ERROR_SUCCESS && type == REG_DWORD ? number : defaultNumber;
}

bool RegistryReadBoolean(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                         bool defaultAnswer) {
  return RegistryReadDword(root, subkey, valueName, defaultAnswer ? 1 : 0) != 0;
}

LSTATUS RegistryWriteDword(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                           DWORD number) {
  return WriteRegistryValue(root, subkey, valueName, REG_DWORD, &number, sizeof(number));
}

}  // namespace kelvo
