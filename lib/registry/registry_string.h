#pragma once

#include <windows.h>

#include <cstddef>

#include "lib/string/wstring.h"

namespace kelvo {

// See lib/registry/registry_key.h for `root`, `subkey`, `valueName` and RegistryAccessFlags.

// The longest value that RegistryReadString reads, in bytes.
inline constexpr DWORD kMaxRegistryStringSize = 2048;

// Returns the string of a REG_SZ or REG_EXPAND_SZ value of at most kMaxRegistryStringSize bytes, or
// `defaultText` when the key does not open or the value is missing, has another type or is longer.
// A null `defaultText` counts as empty; an empty stored string is returned as such. The string ends
// at its first NUL, or with the data when that has none. An odd last byte becomes one more
// character.
//
// A REG_EXPAND_SZ value is expanded with ExpandEnvironmentStringsW into 260 characters (MAX_PATH),
// including the NUL. When the result is longer, returns what Windows wrote into these characters;
// when the expansion fails, returns the stored string.
//   const WString folder =
//       RegistryReadString(HKEY_CURRENT_USER, L"Software\\App", L"Folder", L"C:\\App");
WString RegistryReadString(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                           const wchar_t* defaultText);

// Reads the string of a REG_SZ or REG_EXPAND_SZ value, expanded as RegistryReadString does, into
// `buffer`, which has room for `length` characters and is cleared first. The buffer stays empty
// when the key does not open or the value is missing, has another type or has more than 2 x
// `length` bytes. The string always ends in a NUL within `length`: a longer expansion is cut, and a
// string stored without a terminator loses its last character if it fills the buffer. Returns the
// string's length in characters. For a null buffer or a `length` of 0, returns 0 and writes
// nothing.
std::size_t RegistryReadStringBuffer(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                                     wchar_t* buffer, std::size_t length);

// RegistryReadStringBuffer without the expansion: reads a REG_EXPAND_SZ value as stored.
std::size_t RegistryReadStoredString(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                                     wchar_t* buffer, std::size_t length);

// Writes `text` with its NUL as a REG_SZ or REG_EXPAND_SZ value (RegSetValueExW), creating the key
// and all missing keys on its path. Null counts as empty. Returns 0, the error code of the write,
// -1 when the key cannot be created or opened for KEY_WRITE, or ERROR_INVALID_PARAMETER for a
// string whose size in bytes does not fit in a DWORD.
LSTATUS RegistryWriteString(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                            const wchar_t* text);
LSTATUS RegistryWriteExpandString(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                                  const wchar_t* text);

}  // namespace kelvo
