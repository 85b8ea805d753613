#pragma once

#include <windows.h>

#include <string>

namespace kelvo {

// See lib/registry/registry_key.h for `root`, `subkey`, `valueName` and RegistryAccessFlags.

// Reads a REG_BINARY value into `bytes`. Returns 0, or the error code when the key cannot be
// opened or the value cannot be queried (RegQueryValueExW). On failure, leaves `bytes` unchanged.
// When the value is empty or has another type, also leaves `bytes` unchanged, but returns 0.
LSTATUS RegistryReadBinary(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                           std::string& bytes);

// Writes `bytes` as a REG_BINARY value (RegSetValueExW), creating the key and all missing keys on
// its path. Returns 0 or the error code of the write. Returns -1 when the key cannot be created or
// opened for KEY_WRITE, and ERROR_INVALID_PARAMETER when the size of `bytes` does not fit in
// a DWORD.
LSTATUS RegistryWriteBinary(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                            const std::string& bytes);

}  // namespace kelvo
