#pragma once

#include <windows.h>

namespace kelvo {

// See lib/registry/registry_key.h for `root`, `subkey`, `valueName` and RegistryAccessFlags.

// Returns true when the key opens with KEY_READ and has the value, of any type (RegQueryValueExW).
bool RegistryValueExists(HKEY root, const wchar_t* subkey, const wchar_t* valueName);

// Writes `size` bytes at `data` as a value of the given type (RegSetValueExW), creating the key and
// all missing keys on its path. Returns 0, the error code of the write, or -1 when the key cannot
// be created or opened for KEY_WRITE.
LSTATUS WriteRegistryValue(HKEY root, const wchar_t* subkey, const wchar_t* valueName, DWORD type,
                           const void* data, DWORD size);

// Deletes the value (RegDeleteValueW, with the key opened for KEY_SET_VALUE). Returns 0 when it was
// deleted and -1 otherwise, which includes a value or key that does not exist. The key remains,
// even when it is then empty.
LSTATUS RegistryDeleteValue(HKEY root, const wchar_t* subkey, const wchar_t* valueName);

}  // namespace kelvo
