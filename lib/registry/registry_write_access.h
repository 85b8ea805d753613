#pragma once

#include <windows.h>

namespace kelvo {

// Returns 0 when values can be written to the key `subkey` below `root`, an open or a predefined
// key, and 1 when they cannot. Finds out by writing the REG_DWORD value "RegCheck" and deleting it
// again; a key that did not exist is created and stays. On NT 6.0 and later a process that is not
// elevated gets 1 without an attempt, because its write might be redirected.
int RegistryCanWrite(HKEY root, const wchar_t* subkey);

}  // namespace kelvo
