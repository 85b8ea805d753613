#pragma once

#include <windows.h>

namespace kelvo {

// lib/registry/registry_key.h describes `root`, `subkey` and the global RegistryAccessFlags.

// Tests whether values can be written to a key: writes a REG_DWORD value with the name "RegCheck"
// and then deletes the value. Returns 0 when the write succeeds, and 1 when it fails. When the key
// does not exist, creates the key and does not delete it. On Windows NT 6.0 (Vista) and later, when
// the process is not elevated, writes nothing and returns 1, even for a key to which the process
// can write.
int RegistryCanWrite(HKEY root, const wchar_t* subkey);

}  // namespace kelvo
