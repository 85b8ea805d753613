#pragma once

#include <windows.h>

#include "lib/string/wstring.h"

namespace kelvo {

// Stores the path of the executable registered as the COM local server of `progId` and returns 0.
// Reads the default value of the first key that opens: "LocalServer32", then "LocalServer", below
// the class's key in HKEY_CLASSES_ROOT\CLSID, each in the 64-bit registry view before the 32-bit
// one. The path is the stored string up to its first "/", with any spaces before that. On failure,
// leaves `path` unchanged and returns one of these:
//   0x80110411  the ProgID has no class (CLSIDFromProgID), or is null
//   0x80040011  the class identifier cannot be written as a string (StringFromCLSID)
//   3           no file has that path (FileExists), as when it is in quotation marks
//   other       the Windows error code of opening the last of the four keys or of reading the
//               value: ERROR_MORE_DATA when it is longer than 522 bytes
DWORD GetLocalServerPath(const wchar_t* progId, WString& path);

}  // namespace kelvo
