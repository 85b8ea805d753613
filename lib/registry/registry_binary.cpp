#include "lib/registry/registry_binary.h"

#include <limits>
#include <utility>

#include "lib/registry/registry_key.h"
#include "lib/registry/registry_value.h"

namespace kelvo {

LSTATUS RegistryReadBinary(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                           std::string& bytes) {
  OwnedRegistryKey key;
  LSTATUS status = OpenRegistryKey(root, subkey, KEY_READ, key);
  if (status != ERROR_SUCCESS) {
    return status;
  }
  DWORD type = REG_NONE;
  DWORD size = 0;
  status = RegQueryValueExW(key.get(), valueName, nullptr, &type, nullptr, &size);
  if (status != ERROR_SUCCESS || type != REG_BINARY || size == 0) {
    return status;
  }
  std::string read(size, '\0');
  status = RegQueryValueExW(key.get(), valueName, nullptr, &type,
                            reinterpret_cast<BYTE*>(read.data()), &size);
  if (status == ERROR_SUCCESS) {
    // The value may have become shorter between the two queries.
    read.resize(size);
    bytes = std::move(read);
  }
  return status;
}

LSTATUS RegistryWriteBinary(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                            const std::string& bytes) {
  if (bytes.size() > std::numeric_limits<DWORD>::max()) {
    return ERROR_INVALID_PARAMETER;
  }
  return WriteRegistryValue(root, subkey, valueName, REG_BINARY, bytes.data(),
                            static_cast<DWORD>(bytes.size()));
}

}  // namespace kelvo
