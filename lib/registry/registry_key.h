#pragma once

#include <windows.h>

#include "lib/platform/owned.h"

namespace kelvo {

// Rules for all registry operations in this folder:
//   - `root` is an open key or one of Windows' predefined ones; `subkey` is a path below it, its
//     keys separated by backslashes; `valueName` is a value's name, where null or an empty string
//     means the key's default value. All strings are NUL-terminated.
//   - Except for OpenRegistryKey and CreateRegistryKey, an operation that opens a key closes it.
//   - A status is 0 for success, otherwise the Windows error code of the failing call, or -1 where
//     the operation says so.

// ORed into the access mask of every key that is opened or created here, and passed to
// RegDeleteKeyExW. A program that wants another registry view sets KEY_WOW64_64KEY or
// KEY_WOW64_32KEY before other threads use the registry.
extern REGSAM RegistryAccessFlags;

namespace internal {

struct RegistryKeyTraits {
  using Handle = HKEY;
  static Handle None() { return nullptr; }
  static void Close(Handle handle) { RegCloseKey(handle); }
};

}  // namespace internal

// A key that this process opened, closed with RegCloseKey; null when there is none.
using OwnedRegistryKey = Owned<internal::RegistryKeyTraits>;

// Opens a key that exists (RegOpenKeyExW with `access` | RegistryAccessFlags); a null or empty
// `subkey` opens `root` itself. On failure `key` owns nothing.
LSTATUS OpenRegistryKey(HKEY root, const wchar_t* subkey, REGSAM access, OwnedRegistryKey& key);

// Opens a key for KEY_WRITE | RegistryAccessFlags; creates it, with all missing keys on its path,
// when it does not exist (RegCreateKeyExW, not volatile, default security). `subkey` must not be
// null. On failure `key` owns nothing.
LSTATUS CreateRegistryKey(HKEY root, const wchar_t* subkey, OwnedRegistryKey& key);

// Returns true when the key opens with KEY_READ.
bool RegistryKeyExists(HKEY root, const wchar_t* subkey);

}  // namespace kelvo
