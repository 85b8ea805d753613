#pragma once

#include <windows.h>

namespace kelvo {

// See lib/registry/registry_key.h for `root` and RegistryAccessFlags.

// A tree may be as deep as the registry accepts paths (32,767 characters). A deeper tree is not
// deleted, nor is one with a subkey whose name has 255 characters: the error code of deleting a key
// that still has subkeys is returned. Keys are deleted with RegDeleteKeyExW or, where Windows lacks
// it, with RegDeleteKeyW, which ignores the registry view.
LSTATUS RegistryDeleteKeyTree(HKEY root, const wchar_t* parentPath, const wchar_t* keyName);

}  // namespace kelvo
