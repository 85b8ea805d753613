#pragma once

#include <windows.h>

namespace kelvo {

// See lib/registry/registry_key.h for `root`, `subkey`, `valueName` and RegistryAccessFlags.

// Returns true when the key can be opened for KEY_READ and has the value `valueName`, of any type
// (RegQueryValueExW).
bool RegistryValueExists(HKEY root, const wchar_t* subkey, const wchar_t* valueName);

// Writes `size` bytes at `data` as a value of the given type (RegSetValueExW), creating the key and
// all missing keys on its path. Returns 0 or the error code of the write. Returns -1 when the key
// cannot be created or opened for KEY_WRITE.
LSTATUS WriteRegistryValue(HKEY root, const wchar_t* subkey, const wchar_t* valueName, DWORD type,
                           const void* data, DWORD size);

// Deletes a value (RegDeleteValueW, with the key opened for KEY_SET_VALUE). Returns 0 when the
// value was deleted. Otherwise, for example when the value or the key does not exist, returns -1.
// Never deletes the key, even when it has no values left.
LSTATUS RegistryDeleteValue(HKEY root, const wchar_t* subkey, const wchar_t* valueName);

}  // namespace kelvo
