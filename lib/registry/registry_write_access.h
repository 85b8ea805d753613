#pragma once

#include <windows.h>

namespace kelvo {

// See lib/registry/registry_key.h for `root`, `subkey` and RegistryAccessFlags.

// Returns 0 when values can be written to a key, and 1 when they cannot. To find out, writes a
// REG_DWORD value with the name "RegCheck" and then deletes the value. When the key does not exist,
// creates the key and does not delete it. On Windows NT 6.0 (Vista) and later, when the process is
// not elevated, returns 1 and writes nothing.
int RegistryCanWrite(HKEY root, const wchar_t* subkey);

}  // namespace kelvo
