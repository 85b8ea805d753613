#pragma once

#include "lib/string/wstring.h"

namespace kelvo {

// Returns the path below HKEY_CURRENT_USER of the key in which Explorer caches the names of
// programs that it has started: "Software\Classes\Local
// Settings\Software\Microsoft\Windows\Shell\MuiCache" on Windows Vista and later,
// "Software\Microsoft\Windows\ShellNoRoam\MUICache" on Windows XP and Server 2003, an empty string
// on an earlier Windows. Windows does not document these keys.
WString GetMuiCacheKeyName();

}  // namespace kelvo
