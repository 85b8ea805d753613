#pragma once

#include <windows.h>

namespace kelvo {

// 0 when values can be written under the key, 1 when not. Finds out by writing the REG_DWORD value
// "RegCheck", which creates the key when it is missing, and deleting it again. From NT 6.0 on a
// process that is not elevated is answered 1 without an attempt: its write might be redirected.
int RegistryCanWrite(HKEY root, const wchar_t* subkey);

}  // namespace kelvo
