#pragma once

#include <windows.h>

namespace kelvo {

// See lib/registry/registry_key.h for `root` and RegistryAccessFlags.

// Deletes the key parentPath\keyName below `root` and everything in it, every subkey before its
// parent. Stops when a value or a key cannot be deleted, or when the parent of a key that is to be
// deleted cannot be opened. Returns 0 or the error code of that failure; everything already deleted
// stays deleted. When `parentPath` or `keyName` is null or empty, returns ERROR_ACCESS_DENIED and
// changes nothing.
//
// When a path in the tree has more than 32,767 characters (the limit of the registry functions), or
// the name of a subkey has 255 characters (the maximum), only a part of the tree is deleted. The
// function then returns the error code of deleting a key that still has subkeys. Keys are deleted
// with RegDeleteKeyExW or, when Windows lacks RegDeleteKeyExW, with RegDeleteKeyW, which ignores
// the registry view.
LSTATUS RegistryDeleteKeyTree(HKEY root, const wchar_t* parentPath, const wchar_t* keyName);

}  // namespace kelvo
