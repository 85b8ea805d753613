#pragma once

#include <windows.h>

namespace kelvo {

// See lib/registry/registry_key.h for `root` and RegistryAccessFlags.

// Deletes the key parentPath\keyName below `root` with everything below it, from the deepest key
// up. Returns 0 or the error code of the first deletion that failed, or of opening the key's
// parent; what was deleted before that stays deleted. Returns ERROR_ACCESS_DENIED and changes
// nothing when either string is null or empty.
//
// The paths in a tree may be as long as the registry accepts (32,767 characters). A tree with a
// longer path, or with a subkey whose name has 255 characters, is not deleted completely: the error
// code of deleting a key that still has subkeys is returned. Keys are deleted with RegDeleteKeyExW
// or, where Windows lacks it, with RegDeleteKeyW, which ignores the registry view.
LSTATUS RegistryDeleteKeyTree(HKEY root, const wchar_t* parentPath, const wchar_t* keyName);

}  // namespace kelvo
