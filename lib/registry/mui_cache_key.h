#pragma once

#include "lib/string/wstring.h"

namespace kelvo {

// Returns the path, below HKEY_CURRENT_USER, of the key in which Explorer caches the names of
// the programs that Explorer has started:
//   - on Windows Vista and later,
//     "Software\Classes\Local Settings\Software\Microsoft\Windows\Shell\MuiCache"
//   - on Windows XP and Server 2003, "Software\Microsoft\Windows\ShellNoRoam\MUICache"
//   - on earlier versions, an empty string
// Windows does not document these keys.
WString GetMuiCacheKeyName();

}  // namespace kelvo
