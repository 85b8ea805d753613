#pragma once

#include <windows.h>

#include <cstddef>

#include "lib/string/wstring.h"

namespace kelvo {

// As everywhere in this folder: `root` is an open or a predefined key, `subkey` a path below it,
// and a null or empty `valueName` means the default value. Strings are NUL-terminated. Keys are
// opened with RegistryAccessFlags (lib/registry/registry_key.h) and closed before the function
// returns.

// The longest value that RegistryReadString reads, in bytes.
inline constexpr DWORD kMaxRegistryStringSize = 2048;

// Returns the string of a REG_SZ or REG_EXPAND_SZ value of at most kMaxRegistryStringSize bytes, or
// `defaultText` when the key does not open or the value is missing, has another type or is longer.
// A null `defaultText` counts as empty; an empty stored string is returned as such. The string ends
// at its first NUL, or with the data when that has none; an odd last byte becomes a character of
// its own.
//
// A REG_EXPAND_SZ value is expanded with ExpandEnvironmentStringsW into 260 characters (MAX_PATH),
// the NUL included. A longer result is cut to what Windows wrote into them; when the expansion
// fails, the stored string is returned.
//   const WString folder =
//       RegistryReadString(HKEY_CURRENT_USER, L"Software\\App", L"Folder", L"C:\\App");
WString RegistryReadString(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                           const wchar_t* defaultText);

// Reads the string of a REG_SZ or REG_EXPAND_SZ value, expanded as RegistryReadString does, into
// `buffer`, which has room for `length` characters and is cleared first. The buffer stays empty
// when the key does not open or the value is missing, has another type or has more than 2 x
// `length` bytes. The string always ends in a NUL within `length`: an expansion is cut to fit, and
// a string that was stored without a terminator and fills the buffer loses its last character.
// Returns the string's length in characters; 0 for a null buffer and for a `length` of 0, and then
// nothing is written.
std::size_t RegistryReadStringBuffer(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                                     wchar_t* buffer, std::size_t length);

// RegistryReadStringBuffer without the expansion: a REG_EXPAND_SZ value is read as it is stored.
std::size_t RegistryReadStoredString(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                                     wchar_t* buffer, std::size_t length);

// Writes `text` with its NUL as a REG_SZ or REG_EXPAND_SZ value (RegSetValueExW) and creates the
// key, with all missing keys on its path. Null counts as empty. Returns 0, the error code of the
// write, -1 when the key cannot be created or opened for KEY_WRITE, or ERROR_INVALID_PARAMETER for
// a string whose size in bytes a DWORD cannot hold.
LSTATUS RegistryWriteString(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                            const wchar_t* text);
LSTATUS RegistryWriteExpandString(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                                  const wchar_t* text);

}  // namespace kelvo
