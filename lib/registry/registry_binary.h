#pragma once

#include <windows.h>

#include <string>

namespace kelvo {

// See lib/registry/registry_key.h for `root`, `subkey`, `valueName` and RegistryAccessFlags.

// Reads a REG_BINARY value into `bytes`. Returns 0 or the error code of the failed open or query
// (RegQueryValueExW). Leaves `bytes` unchanged on failure and also, although it returns 0, when the
// value is empty or has another type.
LSTATUS RegistryReadBinary(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                           std::string& bytes);

// Writes `bytes` as a REG_BINARY value (RegSetValueExW), creating the key and all missing keys on
// its path. Returns 0, the error code of the write, -1 when the key cannot be created or opened for
// KEY_WRITE, or ERROR_INVALID_PARAMETER for more bytes than a DWORD can count.
LSTATUS RegistryWriteBinary(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                            const std::string& bytes);

}  // namespace kelvo
