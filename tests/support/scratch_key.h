#pragma once

#include <windows.h>

#include <doctest.h>
#include <string>

#include "lib/registry/registry_key.h"

namespace kelvo::test {

// The path, below HKEY_CURRENT_USER, of a registry key that does not exist yet. When this object is
// destroyed, the key is deleted with all its values and subkeys.
//
// This type does not use the library under test, because a bug in the library could make the path
// empty. The destructor would then delete everything below HKEY_CURRENT_USER.
struct ScratchKey : std::wstring {
  ScratchKey()
      : std::wstring(L"Software\\kelvo test " + std::to_wstring(GetCurrentProcessId()) + L" " +
                     std::to_wstring(++made)) {}
  ScratchKey(const ScratchKey&) = delete;
  ~ScratchKey() { RegDeleteTreeW(HKEY_CURRENT_USER, c_str()); }

  static inline int made = 0;
};

// Stores `units`, without their last `cutBytes` bytes, as a registry value. Appends "#" in
// memory only: if a NUL followed the data in memory, Windows would also store that NUL.
inline void StoreUnits(HKEY root, const wchar_t* subkey, const wchar_t* name, DWORD type,
                       std::wstring units, std::size_t cutBytes = 0) {
  const auto size = static_cast<DWORD>(units.size() * sizeof(wchar_t) - cutBytes);
  units += L'#';
  REQUIRE(RegSetKeyValueW(root, subkey, name, type, units.data(), size) == ERROR_SUCCESS);
}

// In this process, redirects a predefined key, such as HKEY_CURRENT_USER, to `key`, a new, empty
// key (RegOverridePredefKey). The redirection ends when this object is destroyed.
struct StandInKey {
  explicit StandInKey(HKEY replaced) : predefined(replaced) {
    HKEY created = nullptr;
    REQUIRE(RegCreateKeyW(HKEY_CURRENT_USER, scratch.c_str(), &created) == ERROR_SUCCESS);
    REQUIRE(created != nullptr);
    key = OwnedRegistryKey(created);
    REQUIRE(RegOverridePredefKey(predefined, key.get()) == 0);
  }
  ~StandInKey() { RegOverridePredefKey(predefined, nullptr); }

  ScratchKey scratch;
  OwnedRegistryKey key;
  HKEY predefined;
};

}  // namespace kelvo::test
