#pragma once

#include <windows.h>

namespace kelvo {

// See lib/registry/registry_key.h for `root` and RegistryAccessFlags.

// Deletes the key parentPath\keyName below `root` and everything in it, every subkey before its
// parent. Stops at the first step that fails: deleting a value, deleting a key, or opening the
// parent of a key to delete. Returns 0 or the error code of the failed step; everything deleted
// before that step stays deleted. When `parentPath` or `keyName` is null or empty, returns
// ERROR_ACCESS_DENIED and changes nothing.
//
// When a path in the tree has more than 32,767 characters (the limit of the registry functions), or
// the name of a subkey has 255 characters, only a part of the tree is deleted. The function then
// returns the error code of deleting a key that still has subkeys. Keys are deleted with
// RegDeleteKeyExW. Where Windows lacks this function, they are deleted with RegDeleteKeyW, which
// ignores the registry view.
LSTATUS RegistryDeleteKeyTree(HKEY root, const wchar_t* parentPath, const wchar_t* keyName);

}  // namespace kelvo
