#pragma once

#include <windows.h>

#include "lib/platform/owned.h"

namespace kelvo {

// Rules for all registry operations in this folder:
//   - `root` is an open key or a predefined key. `subkey` is the path of a key below `root`, with
//     backslashes between the key names. `valueName` is a value's name; null or an empty string
//     means the key's default value. All strings are NUL-terminated.
//   - Only OpenRegistryKey and CreateRegistryKey leave a key open; every other function closes the
//     keys that it opened.
//   - An LSTATUS is 0 on success. On failure, it is the Windows error code of the failed call,
//     unless the function's comment names another number, such as -1.

// When the functions in this folder open or create a key, their access mask includes these flags.
// When they delete a key, they pass these flags to RegDeleteKeyExW. To choose a registry view, set
// this variable to KEY_WOW64_64KEY or KEY_WOW64_32KEY before other threads use the registry.
extern REGSAM RegistryAccessFlags;

namespace internal {

struct RegistryKeyTraits {
  using Handle = HKEY;
  static Handle None() { return nullptr; }
  static void Close(Handle handle) { RegCloseKey(handle); }
};

}  // namespace internal

// Owns a key that this process opened, and closes it with RegCloseKey. Null means "no key".
using OwnedRegistryKey = Owned<internal::RegistryKeyTraits>;

// Opens an existing key (RegOpenKeyExW with `access` | RegistryAccessFlags). When `subkey` is null
// or empty, opens `root` itself. On failure, `key` owns nothing.
LSTATUS OpenRegistryKey(HKEY root, const wchar_t* subkey, REGSAM access, OwnedRegistryKey& key);

// Opens a key with KEY_WRITE | RegistryAccessFlags (RegCreateKeyExW). If the key does not exist,
// first creates it and all missing keys on its path (non-volatile, default security). `subkey` must
// not be null. On failure, `key` owns nothing.
LSTATUS CreateRegistryKey(HKEY root, const wchar_t* subkey, OwnedRegistryKey& key);

// Returns true when the key can be opened with KEY_READ access.
bool RegistryKeyExists(HKEY root, const wchar_t* subkey);

}  // namespace kelvo
