#pragma once

#include <windows.h>

#include "lib/string/wstring.h"

namespace kelvo {

// Stores in `path` the path of the executable that is registered as the COM local server of
// `progId`, and returns 0. Tries to open the keys "LocalServer32" and then "LocalServer" below the
// class's key in HKEY_CLASSES_ROOT\CLSID, each first in the 64-bit and then in the 32-bit registry
// view. Reads the default value of the first key that can be opened. The path is the stored string
// without its first "/" and everything after that "/". Spaces before the "/" belong to the path. On
// failure, leaves `path` unchanged and returns one of these:
//   0x80110411  the ProgID has no class (CLSIDFromProgID), or is null
//   0x80040011  the class identifier cannot be converted to a string (StringFromCLSID)
//   3           no file has that path (FileExists), for example because the stored path is in
//               quotation marks
//   other       the Windows error code of the last of the four attempts to open a key, or of
//               reading the value, such as ERROR_MORE_DATA for a value of more than 522 bytes
DWORD GetLocalServerPath(const wchar_t* progId, WString& path);

}  // namespace kelvo
