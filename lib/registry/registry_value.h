#pragma once

#include <windows.h>

namespace kelvo {

// As everywhere in this folder: `root` is an open or a predefined key, `subkey` a path below it,
// and a null or empty `valueName` means the default value. Strings are NUL-terminated. Keys are
// opened with RegistryAccessFlags (lib/registry/registry_key.h) and closed before the function
// returns.

// Returns true when the key opens with KEY_READ and the value is there, of any type
// (RegQueryValueExW).
bool RegistryValueExists(HKEY root, const wchar_t* subkey, const wchar_t* valueName);

// Writes `size` bytes at `data` as a value of the given type (RegSetValueExW) and creates the key,
// with all missing keys on its path. Returns 0, the error code of the write, or -1 when the key
// cannot be created or opened for KEY_WRITE.
LSTATUS WriteRegistryValue(HKEY root, const wchar_t* subkey, const wchar_t* valueName, DWORD type,
                           const void* data, DWORD size);

// Deletes the value (RegDeleteValueW, with the key opened for KEY_SET_VALUE). Returns 0 when it was
// deleted, -1 otherwise, also when the value or the key does not exist. The key remains, even when
// it is empty afterwards.
LSTATUS RegistryDeleteValue(HKEY root, const wchar_t* subkey, const wchar_t* valueName);

}  // namespace kelvo
