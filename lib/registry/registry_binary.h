#pragma once

#include <windows.h>

#include <string>

namespace kelvo {

// Reads a REG_BINARY value that is not empty into `bytes`. Returns the status of the last query
// made, or the open's when the key does not open. `bytes` is untouched when the status is not 0,
// and also, with status 0, when the value is of another type or empty.
LSTATUS RegistryReadBinary(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                           std::string& bytes);

// Writes `bytes` as REG_BINARY; creates and returns as WriteRegistryValue. More bytes than a DWORD
// counts are refused with ERROR_INVALID_PARAMETER.
LSTATUS RegistryWriteBinary(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                            const std::string& bytes);

}  // namespace kelvo
