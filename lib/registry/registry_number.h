#pragma once

#include <windows.h>

namespace kelvo {

// See lib/registry/registry_key.h for `root`, `subkey`, `valueName` and RegistryAccessFlags.

// Returns the number in a REG_DWORD value (RegQueryValueExW). Returns `defaultNumber` when the key
// cannot be opened, or when the value is missing, has another type or has more than 4 bytes. When
// the value has fewer than 4 bytes, the missing high bytes count as 0.
DWORD RegistryReadDword(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                        DWORD defaultNumber);

// Returns true for a REG_DWORD value other than 0, false for 0, and `defaultAnswer` when
// RegistryReadDword would return `defaultNumber`.
bool RegistryReadBoolean(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                         bool defaultAnswer);

// Writes a REG_DWORD value of 4 bytes (RegSetValueExW), creating the key and all missing keys on
// its path. Returns 0 or the error code of the write. Returns -1 when the key cannot be created or
// opened for KEY_WRITE.
LSTATUS RegistryWriteDword(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                           DWORD number);

}  // namespace kelvo
