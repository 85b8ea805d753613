#pragma once

#include <windows.h>

#include <string>

namespace kelvo {

// lib/registry/registry_key.h describes `root`, `subkey`, `valueName` and the global
// RegistryAccessFlags.

// Reads a REG_BINARY value into `bytes` and returns 0. When the value is empty or its type is not
// REG_BINARY, leaves `bytes` unchanged and returns 0. When the key cannot be opened or the value
// cannot be queried (RegQueryValueExW), leaves `bytes` unchanged and returns the error code.
LSTATUS RegistryReadBinary(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                           std::string& bytes);

// Writes `bytes` as a REG_BINARY value. If the key does not exist, first creates it and all missing
// keys on its path. Returns the result of RegSetValueExW: 0, or the error code. Returns -1 when the
// key cannot be created, or cannot be opened with KEY_WRITE access. Returns ERROR_INVALID_PARAMETER
// when the size of `bytes` does not fit in a DWORD.
LSTATUS RegistryWriteBinary(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                            const std::string& bytes);

}  // namespace kelvo
