#pragma once

#include <windows.h>

namespace kelvo {

// Deletes the key parentPath\keyName below `root`, an open or a predefined key, with everything
// below it, from the deepest key up. Both strings are NUL-terminated. Returns 0, or the error code
// of the first step that failed; what was deleted before that stays deleted. Returns
// ERROR_ACCESS_DENIED, without touching anything, when either string is null or empty.
//
// Trees of any depth are walked as far as a path that the registry accepts reaches (32,767
// characters). A deeper tree is not deleted: the error code of deleting a key that still has
// subkeys is returned. A subkey whose name has 255 characters is not walked either. Keys are opened
// with RegistryAccessFlags (lib/registry/registry_key.h) and deleted with RegDeleteKeyExW, or,
// where Windows lacks that, with RegDeleteKeyW, which knows no view.
LSTATUS RegistryDeleteKeyTree(HKEY root, const wchar_t* parentPath, const wchar_t* keyName);

}  // namespace kelvo
