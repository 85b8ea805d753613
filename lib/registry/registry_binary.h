#pragma once

#include <windows.h>

#include <string>

namespace kelvo {

// As everywhere in this folder: `root` is an open or a predefined key, `subkey` a path below it,
// and a null or empty `valueName` means the default value. Strings are NUL-terminated. Keys are
// opened with RegistryAccessFlags (lib/registry/registry_key.h) and closed before the function
// returns.

// Reads a REG_BINARY value into `bytes`. Returns 0, or the error code of the open or the query
// (RegQueryValueExW) that failed. `bytes` is unchanged on failure, and also, although 0 is
// returned, when the value is empty or has another type.
LSTATUS RegistryReadBinary(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                           std::string& bytes);

// Writes `bytes` as a REG_BINARY value (RegSetValueExW) and creates the key, with all missing keys
// on its path. Returns 0, the error code of the write, -1 when the key cannot be created or opened
// for KEY_WRITE, or ERROR_INVALID_PARAMETER for more bytes than a DWORD can count.
LSTATUS RegistryWriteBinary(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                            const std::string& bytes);

}  // namespace kelvo
