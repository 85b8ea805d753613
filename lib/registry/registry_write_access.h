#pragma once

#include <windows.h>

namespace kelvo {

// `root` and `subkey` are as in lib/registry/registry_key.h; RegistryAccessFlags applies.

// Returns 0 when values can be written to a key, and 1 when they cannot. Tests this by writing the
// REG_DWORD value "RegCheck" and deleting it again. A missing key is created and stays. On NT 6.0
// and later, when the process is not elevated, returns 1 without trying.
int RegistryCanWrite(HKEY root, const wchar_t* subkey);

}  // namespace kelvo
