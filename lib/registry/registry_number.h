#pragma once

#include <windows.h>

namespace kelvo {

// As everywhere in this folder: `root` is an open or a predefined key, `subkey` a path below it,
// and a null or empty `valueName` means the default value. Strings are NUL-terminated. Keys are
// opened with RegistryAccessFlags (lib/registry/registry_key.h) and closed before the function
// returns.

// Returns the number that a REG_DWORD value stores (RegQueryValueExW), or `defaultNumber` when the
// key does not open or the value is missing, has another type or has more than 4 bytes. The missing
// high bytes of shorter data count as 0.
DWORD RegistryReadDword(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                        DWORD defaultNumber);

// Returns true when RegistryReadDword, with a default of 1 for true and 0 for false, returns a
// number other than 0.
bool RegistryReadBoolean(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                         bool defaultAnswer);

// Writes a REG_DWORD value of 4 bytes (RegSetValueExW) and creates the key, with all missing keys
// on its path. Returns 0, the error code of the write, or -1 when the key cannot be created or
// opened for KEY_WRITE.
LSTATUS RegistryWriteDword(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                           DWORD number);

}  // namespace kelvo
