#pragma once

#include <windows.h>

#include <cstddef>

#include "lib/string/wstring.h"

namespace kelvo {

// lib/registry/registry_key.h describes `root`, `subkey`, `valueName` and the global
// RegistryAccessFlags.

// The size, in bytes, of the longest value that RegistryReadString reads.
inline constexpr DWORD kMaxRegistryStringSize = 2048;

// Returns the string of a REG_SZ or REG_EXPAND_SZ value of at most kMaxRegistryStringSize bytes.
// Returns `defaultText` when the key cannot be opened, or when the value is missing, has another
// type or is longer. A null `defaultText` counts as empty. When the stored string is empty, returns
// an empty string, not `defaultText`. The string ends at the first NUL in the data or, when there
// is no NUL, at the end of the data. If the data has an odd number of bytes, the last byte becomes
// the low byte of one more character.
//
// A REG_EXPAND_SZ value is expanded with ExpandEnvironmentStringsW into a buffer of 260 characters
// (MAX_PATH), including the NUL. When the result is longer, returns the part that Windows wrote
// into the buffer. When the expansion fails, returns the stored string.
//   const WString folder =
//       RegistryReadString(HKEY_CURRENT_USER, L"Software\\App", L"Folder", L"C:\\App");
WString RegistryReadString(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                           const wchar_t* defaultText);

// Reads the string of a REG_SZ or REG_EXPAND_SZ value into `buffer`, which has room for `length`
// characters, and returns the string's length in characters. Expands a REG_EXPAND_SZ value in the
// same way as RegistryReadString. First fills the whole buffer with NULs. The buffer holds an empty
// string when the key cannot be opened, or when the value is missing, has another type or has more
// than 2 x `length` bytes. The string in the buffer always ends with a NUL. An expansion that does
// not fit is truncated. If a string that is stored without a NUL fills the buffer, the string loses
// its last character. When `buffer` is null or `length` is 0, returns 0 and writes nothing.
std::size_t RegistryReadStringBuffer(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                                     wchar_t* buffer, std::size_t length);

// Does the same as RegistryReadStringBuffer, but does not expand a REG_EXPAND_SZ value.
std::size_t RegistryReadStoredString(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                                     wchar_t* buffer, std::size_t length);

// RegistryWriteString writes `text` as a REG_SZ value, and RegistryWriteExpandString writes `text`
// as a REG_EXPAND_SZ value. The following applies to both functions. The stored data includes the
// NUL. If the key does not exist, the function creates it and all missing keys on its path. A null
// `text` counts as empty. Returns ERROR_INVALID_PARAMETER when the size of the string in bytes does
// not fit in a DWORD. Returns -1 when the key cannot be created or opened with KEY_WRITE access.
// Otherwise, returns the result of RegSetValueExW.
LSTATUS RegistryWriteString(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                            const wchar_t* text);
LSTATUS RegistryWriteExpandString(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                                  const wchar_t* text);

}  // namespace kelvo
