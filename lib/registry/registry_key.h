#pragma once

#include <windows.h>

#include "lib/platform/owned.h"

namespace kelvo {

// Rules for all registry operations in this folder:
//   - `root` is an open or a predefined key. `subkey` is a path below it, with backslashes between
//     its keys. `valueName` is a value's name; null or an empty string means the key's default
//     value. All strings are NUL-terminated.
//   - Keys are opened with RegistryAccessFlags. Only OpenRegistryKey and CreateRegistryKey leave a
//     key open; every other function closes its keys before it returns.
//   - A status is 0 for success, otherwise the Windows error code of the failed call, or -1 where
//     the operation says so.

// ORed into the access mask of every key that these operations open or create, and passed to
// RegDeleteKeyExW. To use another registry view, set it to KEY_WOW64_64KEY or KEY_WOW64_32KEY
// before other threads use the registry.
extern REGSAM RegistryAccessFlags;

namespace internal {

struct RegistryKeyTraits {
  using Handle = HKEY;
  static Handle None() { return nullptr; }
  static void Close(Handle handle) { RegCloseKey(handle); }
};

}  // namespace internal

// A key that this process opened: closed with RegCloseKey, null when there is none.
using OwnedRegistryKey = Owned<internal::RegistryKeyTraits>;

// Opens an existing key (RegOpenKeyExW with `access` | RegistryAccessFlags). A null or empty
// `subkey` opens `root` itself. On failure, `key` owns nothing.
LSTATUS OpenRegistryKey(HKEY root, const wchar_t* subkey, REGSAM access, OwnedRegistryKey& key);

// Opens a key for KEY_WRITE | RegistryAccessFlags, or creates it and all missing keys on its path
// (RegCreateKeyExW, non-volatile, default security). `subkey` must not be null. On failure, `key`
// owns nothing.
LSTATUS CreateRegistryKey(HKEY root, const wchar_t* subkey, OwnedRegistryKey& key);

// Returns true when the key opens with KEY_READ.
bool RegistryKeyExists(HKEY root, const wchar_t* subkey);

}  // namespace kelvo
