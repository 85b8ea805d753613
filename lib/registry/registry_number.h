#pragma once

#include <windows.h>

namespace kelvo {

// The number that a REG_DWORD value stores; `defaultNumber` when key or value is missing, the type
// is another or the data longer than 4 bytes. Missing high bytes of shorter data count as 0.
DWORD RegistryReadDword(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                        DWORD defaultNumber);

// True when RegistryReadDword gives a number other than 0.
bool RegistryReadBoolean(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                         bool defaultAnswer);

// Writes a REG_DWORD of 4 bytes; creates and returns as WriteRegistryValue.
LSTATUS RegistryWriteDword(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                           DWORD number);

}  // namespace kelvo
