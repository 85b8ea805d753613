#pragma once

#include <windows.h>

namespace kelvo {

// lib/registry/registry_key.h describes `root`, `subkey`, `valueName` and the global
// RegistryAccessFlags.

// Returns true when the key can be opened with KEY_READ and has the value `valueName`, of any type
// (RegQueryValueExW).
bool RegistryValueExists(HKEY root, const wchar_t* subkey, const wchar_t* valueName);

// Reads `size` bytes from `data` and stores them as a value of the given type (RegSetValueExW). If
// the key does not exist, first creates it and all missing keys on its path. Returns 0 on success,
// or the error code of RegSetValueExW. Returns -1 when the key cannot be created or opened with
// KEY_WRITE.
LSTATUS WriteRegistryValue(HKEY root, const wchar_t* subkey, const wchar_t* valueName, DWORD type,
                           const void* data, DWORD size);

// Opens the key with KEY_SET_VALUE and deletes the value (RegDeleteValueW). Returns 0 when the
// value was deleted. Returns -1 otherwise, for example when the value or the key does not exist.
// Never deletes the key, even when it has no values left.
LSTATUS RegistryDeleteValue(HKEY root, const wchar_t* subkey, const wchar_t* valueName);

}  // namespace kelvo
