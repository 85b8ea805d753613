#pragma once

#include <windows.h>

#include <cstddef>

#include "lib/string/wstring.h"

namespace kelvo {

// In bytes; RegistryReadString takes a longer value for one that cannot be used.
inline constexpr DWORD kMaxRegistryStringSize = 2048;

// The value's text when it is a REG_SZ or REG_EXPAND_SZ of at most 2,048 bytes, otherwise
// `defaultText`: for a missing key or value, another type and a longer value alike. An empty stored
// text is an answer, not a missing one. The text ends at its first NUL, or with the data when that
// has none; a last odd byte becomes a unit of its own. REG_EXPAND_SZ is expanded with
// ExpandEnvironmentStringsW into 260 characters; where the expansion fails, the stored text is
// returned. A null `defaultText` counts as empty.
WString RegistryReadString(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                           const wchar_t* defaultText);

// The same into a buffer of `length` characters, without a default: the buffer is cleared first and
// stays empty where RegistryReadString would give the default; a value of more than 2 x `length`
// bytes counts as one that cannot be used. Always ends in a NUL within `length`, to which a stored
// text without terminator that fills the buffer gives up its last character. Returns the length of
// the text in characters, 0 for a null buffer or a `length` of 0, which are left alone.
std::size_t RegistryReadStringBuffer(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                                     wchar_t* buffer, std::size_t length);

// The same with the text as it is stored, a REG_EXPAND_SZ not expanded.
std::size_t RegistryReadStoredString(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                                     wchar_t* buffer, std::size_t length);

// Writes `text` with its NUL as REG_SZ or REG_EXPAND_SZ (WriteRegistryValue says what it creates
// and returns). Null counts as empty. A text whose size in bytes a DWORD cannot hold is refused
// with ERROR_INVALID_PARAMETER.
LSTATUS RegistryWriteString(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                            const wchar_t* text);
LSTATUS RegistryWriteExpandString(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                                  const wchar_t* text);

}  // namespace kelvo
