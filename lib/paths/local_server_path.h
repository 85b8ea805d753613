#pragma once

#include <windows.h>

#include "lib/string/wstring.h"

namespace kelvo {

// Finds the executable of the COM local server that is registered for `progId`, stores its path and
// returns 0. The path is the default value of the class's key "LocalServer32", or of "LocalServer",
// below "CLSID" in HKEY_CLASSES_ROOT (the 64-bit registry view before the 32-bit one), as it is
// stored, up to its first "/"; spaces before that are kept. On failure `path` is unchanged, and one
// of these is returned:
//   0x80110411  the ProgID has no class (CLSIDFromProgID), or is null
//   0x80040011  the class identifier cannot be written as a string (StringFromCLSID)
//   3           no file has that path (FileExists), as with a path in quotation marks
//   another     the Windows error code of opening the last of the four keys or of reading the
//               value: ERROR_MORE_DATA when it is longer than 522 bytes
DWORD GetLocalServerPath(const wchar_t* progId, WString& path);

}  // namespace kelvo
