#pragma once

#include <windows.h>

namespace kelvo {

// True when the key opens with KEY_READ and a query of the value's type and size succeeds.
bool RegistryValueExists(HKEY root, const wchar_t* subkey, const wchar_t* valueName);

// Writes `size` bytes at `data` as a value of the given type; creates the key, with all missing
// keys on its path, when it is not there. Returns the write's status, or -1 when the key could not
// be created or opened for KEY_WRITE.
LSTATUS WriteRegistryValue(HKEY root, const wchar_t* subkey, const wchar_t* valueName, DWORD type,
                           const void* data, DWORD size);

// Deletes the value (key opened with KEY_SET_VALUE). Returns 0 when it was deleted and -1 in every
// other case, a missing value or key among them. The key stays, also when it is empty afterwards.
LSTATUS RegistryDeleteValue(HKEY root, const wchar_t* subkey, const wchar_t* valueName);

}  // namespace kelvo
