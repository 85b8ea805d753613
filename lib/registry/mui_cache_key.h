#pragma once

#include "lib/string/wstring.h"

namespace kelvo {

// The key below HKEY_CURRENT_USER in which Explorer caches the names of programs that it has
// started. From Windows Vista on it is
// "Software\Classes\Local Settings\Software\Microsoft\Windows\Shell\MuiCache", on Windows XP and
// Server 2003 "Software\Microsoft\Windows\ShellNoRoam\MUICache"; empty on an earlier Windows. The
// maker of Windows does not document these keys.
WString GetMuiCacheKeyName();

}  // namespace kelvo
