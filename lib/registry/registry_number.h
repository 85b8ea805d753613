#pragma once

#include <windows.h>

namespace kelvo {

// lib/registry/registry_key.h describes `root`, `subkey`, `valueName` and the global
// RegistryAccessFlags.

// Returns the number in a REG_DWORD value (RegQueryValueExW). Returns `defaultNumber` when the key
// cannot be opened, or when the value is missing, has another type or has more than 4 bytes. When
// the value has fewer than 4 bytes, the missing high bytes count as 0.
DWORD RegistryReadDword(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                        DWORD defaultNumber);

// Reads a REG_DWORD value as RegistryReadDword does. Returns false when the number is 0, and true
// when it is any other number. In the cases in which RegistryReadDword returns `defaultNumber`,
// returns `defaultAnswer`.
bool RegistryReadBoolean(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                         bool defaultAnswer);

// Writes a REG_DWORD value of 4 bytes (RegSetValueExW). When the key does not exist, first creates
// the key and all missing keys on its path. Returns 0 on success, or the error code of
// RegSetValueExW. Returns -1 when the key cannot be created or opened with KEY_WRITE.
LSTATUS RegistryWriteDword(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                           DWORD number);

}  // namespace kelvo
