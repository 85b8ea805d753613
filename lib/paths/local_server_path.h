#pragma once

#include <windows.h>

#include "lib/string/wstring.h"

namespace kelvo {

// Stores in `path` the path of the executable that is registered as the COM local server of
// `progId`, and returns 0. Tries to open the keys "LocalServer32" and then "LocalServer" below the
// class's key in HKEY_CLASSES_ROOT\CLSID, each first in the 64-bit and then in the 32-bit registry
// view. Reads the default value of the first key that can be opened. If the value contains a "/",
// the path is the part before the first "/", including any spaces at the end of that part.
// Otherwise, the path is the whole value. On failure, leaves `path` unchanged and returns one of
// these:
//   0x80110411  `progId` is null, or CLSIDFromProgID fails, for example because no class has this
//               `progId`
//   0x80040011  the class identifier cannot be converted to a string (StringFromCLSID)
//   3           the path does not exist (FileExists), for example because the value has quotation
//               marks around the path
//   other       a Windows error code. If no key can be opened, this is the error of the last of the
//               four attempts. If the value cannot be read, it is the error of RegQueryValueExW,
//               such as ERROR_MORE_DATA for a value of more than 522 bytes.
DWORD GetLocalServerPath(const wchar_t* progId, WString& path);

}  // namespace kelvo
