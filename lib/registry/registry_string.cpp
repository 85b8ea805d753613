#include "lib/registry/registry_string.h"

#include <algorithm>
#include <array>
#include <cwchar>
#include <limits>
#include <span>
#include <string_view>

#include "lib/registry/registry_key.h"
#include "lib/registry/registry_value.h"

namespace kelvo {

namespace {

constexpr DWORD kReadLength = kMaxRegistryStringSize / sizeof(wchar_t);

enum class Expansion { kNone, kWhereTypeSays };

// Reads a string value into the first `capacity` characters of `buffer`, which the caller has
// filled with NULs. When the value cannot be read or is not a string, returns false, and `buffer`
// holds an empty string.
bool ReadText(HKEY root, const wchar_t* subkey, const wchar_t* valueName, Expansion expansion,
              std::span<wchar_t> buffer, DWORD capacity) {
  OwnedRegistryKey key;
  if (OpenRegistryKey(root, subkey, KEY_READ, key) != ERROR_SUCCESS) {
    return false;
  }
  DWORD type = REG_NONE;
  DWORD size = capacity * sizeof(wchar_t);
  const LSTATUS status = RegQueryValueExW(key.get(), valueName, nullptr, &type,
                                          reinterpret_cast<BYTE*>(buffer.data()), &size);
  key.reset();
  if (status != ERROR_SUCCESS || (type != REG_SZ && type != REG_EXPAND_SZ)) {
    buffer.front() = L'\0';
    return false;
  }
  // The string may have been stored without a terminator.
  buffer.back() = L'\0';
  if (type == REG_EXPAND_SZ && expansion == Expansion::kWhereTypeSays) {
    // When the result does not fit, ExpandEnvironmentStringsW may write MAX_PATH characters without
    // a NUL. The array is one character longer, so that a NUL always follows them.
    std::array<wchar_t, MAX_PATH + 1> expanded{};
    if (ExpandEnvironmentStringsW(buffer.data(), expanded.data(), MAX_PATH) != 0) {
      lstrcpynW(buffer.data(), expanded.data(), static_cast<int>(capacity));
    }
  }
  return true;
}

std::size_t ReadIntoBuffer(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                           Expansion expansion, wchar_t* buffer, std::size_t length) {
  if (buffer == nullptr || length == 0) {
    return 0;
  }
  std::fill_n(buffer, length, L'\0');
  constexpr std::size_t kLongest = std::numeric_limits<int>::max() / sizeof(wchar_t);
  const auto capacity = static_cast<DWORD>(std::min(length, kLongest));
  ReadText(root, subkey, valueName, expansion, {buffer, length}, capacity);
  return std::wcslen(buffer);
}

LSTATUS WriteText(HKEY root, const wchar_t* subkey, const wchar_t* valueName, DWORD type,
                  const wchar_t* text) {
  const std::wstring_view stored(text == nullptr ? L"" : text);
  if (stored.length() >= std::numeric_limits<DWORD>::max() / sizeof(wchar_t)) {
    return ERROR_INVALID_PARAMETER;
  }
  return WriteRegistryValue(root, subkey, valueName, type, stored.data(),
                            static_cast<DWORD>((stored.length() + 1) * sizeof(wchar_t)));
}

}  // namespace

WString RegistryReadString(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                           const wchar_t* defaultText) {
  // The buffer is one character longer than the size passed to RegQueryValueExW, so that a value of
  // kMaxRegistryStringSize bytes without a terminator is followed by a NUL.
  std::array<wchar_t, kReadLength + 1> buffer{};
  const bool found =
      ReadText(root, subkey, valueName, Expansion::kWhereTypeSays, buffer, kReadLength);
  return {found ? buffer.data() : defaultText};
}

std::size_t RegistryReadStringBuffer(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                                     wchar_t* buffer, std::size_t length) {
  return ReadIntoBuffer(root, subkey, valueName, Expansion::kWhereTypeSays, buffer, length);
}

std::size_t RegistryReadStoredString(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                                     wchar_t* buffer, std::size_t length) {
  return ReadIntoBuffer(root, subkey, valueName, Expansion::kNone, buffer, length);
}

LSTATUS RegistryWriteString(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                            const wchar_t* text) {
  return WriteText(root, subkey, valueName, REG_SZ, text);
}

LSTATUS RegistryWriteExpandString(HKEY root, const wchar_t* subkey, const wchar_t* valueName,
                                  const wchar_t* text) {
  return WriteText(root, subkey, valueName, REG_EXPAND_SZ, text);
}

}  // namespace kelvo
