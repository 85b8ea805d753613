#pragma once

#include <windows.h>

#include <doctest.h>
#include <string>

#include "lib/registry/registry_key.h"
#include "lib/string/format_text.h"

namespace kelvo::test {

// The path of a registry key of this test's own below HKEY_CURRENT_USER. The key is not there at
// first and is deleted, with everything below it, along with this object.
struct ScratchKey : WString {
  ScratchKey()
      : WString(FormatText(L"Software\\kelvo test %u %d", GetCurrentProcessId(), ++made)) {}
  ScratchKey(const ScratchKey&) = delete;
  // Not RegistryDeleteKeyTree, which is under test.
  ~ScratchKey() { RegDeleteTreeW(HKEY_CURRENT_USER, c_str()); }

  static inline int made = 0;
};

// Stores `units` without their last `cutBytes` bytes as a value. Puts "#" after them, since Windows
// would store a NUL that it found there.
inline void StoreUnits(HKEY root, const wchar_t* subkey, const wchar_t* name, DWORD type,
                       std::wstring units, std::size_t cutBytes = 0) {
  const auto size = static_cast<DWORD>(units.size() * sizeof(wchar_t) - cutBytes);
  units += L'#';
  REQUIRE(RegSetKeyValueW(root, subkey, name, type, units.data(), size) == ERROR_SUCCESS);
}

// As long as it lives, this process finds `key`, empty at first, in place of one of Windows'
// predefined keys. Tests write and delete through `key`, never through the predefined one.
struct StandInKey {
  explicit StandInKey(HKEY replaced) : predefined(replaced) {
    REQUIRE(CreateRegistryKey(HKEY_CURRENT_USER, scratch.c_str(), key) == 0);
    REQUIRE(RegOverridePredefKey(predefined, key.get()) == 0);
  }
  ~StandInKey() { RegOverridePredefKey(predefined, nullptr); }

  ScratchKey scratch;
  OwnedRegistryKey key;
  HKEY predefined;
};

}  // namespace kelvo::test
