#pragma once

#include <windows.h>

namespace kelvo {

// See lib/registry/registry_key.h for `root` and RegistryAccessFlags.

// Deletes the key parentPath\keyName below `root`, with all its values and subkeys. Each subkey is
// deleted before its parent. Returns 0 on success. At the first value or key that cannot be
// deleted, stops and returns the error code. This includes a key whose parent cannot be opened.
// Everything that is already deleted stays deleted. When `parentPath` or `keyName` is null or
// empty, returns ERROR_ACCESS_DENIED and changes nothing.
//
// When a path in the tree has more than 32,767 characters (the limit of the registry functions), or
// the name of a subkey has 255 characters (the maximum), only a part of the tree is deleted. The
// function then returns the error code with which Windows refuses to delete a key that has subkeys.
//
// Keys are deleted with RegDeleteKeyExW. When Windows lacks that function, keys are deleted with
// RegDeleteKeyW, which ignores the registry view.
LSTATUS RegistryDeleteKeyTree(HKEY root, const wchar_t* parentPath, const wchar_t* keyName);

}  // namespace kelvo
