#pragma once

#include <windows.h>

namespace kelvo {

// lib/registry/registry_key.h describes `root` and the global RegistryAccessFlags.

// Deletes the key parentPath\keyName below `root`, with all its values and subkeys. Each subkey is
// deleted before its parent. Returns 0 on success. Stops at the first value or key that cannot be
// deleted, and returns the error code. A key cannot be deleted if its parent cannot be opened.
// Everything that is already deleted stays deleted. When `parentPath` or `keyName` is null or
// empty, returns ERROR_ACCESS_DENIED and changes nothing.
//
// The function does not find a subkey whose name has 255 characters (the maximum). It also does not
// find the subkeys of a key whose path has more than 32,767 characters (the limit of the registry
// functions). In both cases, it deletes only a part of the tree, and returns the error code with
// which Windows refuses to delete a key that has subkeys.
//
// Keys are deleted with RegDeleteKeyExW. When Windows lacks that function, keys are deleted with
// RegDeleteKeyW, which ignores the registry view.
LSTATUS RegistryDeleteKeyTree(HKEY root, const wchar_t* parentPath, const wchar_t* keyName);

}  // namespace kelvo
