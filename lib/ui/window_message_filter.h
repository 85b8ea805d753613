#pragma once

#include <windows.h>

namespace kelvo {

// Changes the UIPI message filter of `window` (ChangeWindowMessageFilterEx, looked up at run time).
// With the action MSGFLT_ALLOW, the window can receive `message` from less privileged processes.
// MSGFLT_DISALLOW withdraws that permission, and MSGFLT_RESET resets the window's whole filter to
// the default. `filterStatus` may be null. All arguments are passed on unchanged. Returns true when
// ChangeWindowMessageFilterEx succeeds. Before Windows 7, and when Windows lacks
// ChangeWindowMessageFilterEx, changes nothing and returns false.
bool AllowWindowMessage(HWND window, UINT message, DWORD action, CHANGEFILTERSTRUCT* filterStatus);

}  // namespace kelvo
