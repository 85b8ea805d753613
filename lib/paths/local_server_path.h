#pragma once

#include <windows.h>

#include "lib/string/wstring.h"

namespace kelvo {

// Finds the executable of the COM local server that is registered for `progId`, stores its path and
// returns 0. The path is the default value of the class's key "LocalServer32", or of "LocalServer",
// below HKEY_CLASSES_ROOT "CLSID" (the 64-bit registry view before the 32-bit one), as it is
// stored, up to its first "/"; blanks before that stay. What `path` holds is untouched on failure.
// Failures:
//   0x80110411  the ProgID has no class (CLSIDFromProgID), or is null
//   0x80040011  the class id has no text (StringFromCLSID)
//   3           the path names no file (FileExists), as one in quotation marks
// and otherwise the Windows error code of opening the last of the four keys or of reading the
// value, ERROR_MORE_DATA when it is longer than 522 bytes.
DWORD GetLocalServerPath(const wchar_t* progId, WString& path);

}  // namespace kelvo
