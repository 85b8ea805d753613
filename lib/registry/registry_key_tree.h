#pragma once

#include <windows.h>

namespace kelvo {

// Deletes the key parentPath\keyName with everything below it. Returns the status of the first step
// that failed (what was deleted before stays deleted), and ERROR_ACCESS_DENIED, without touching
// anything, when either name is null or empty. A subkey whose name fills 255 characters is not
// walked, so its parent's deletion fails. Uses RegDeleteKeyExW with RegistryAccessFlags, or
// RegDeleteKeyW, which knows no view, where Windows does not have it.
LSTATUS RegistryDeleteKeyTree(HKEY root, const wchar_t* parentPath, const wchar_t* keyName);

}  // namespace kelvo
