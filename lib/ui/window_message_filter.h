#pragma once

#include <windows.h>

namespace kelvo {

// Changes the UIPI message filter of `window`: depending on `action`, allows the window to receive
// `message` from less privileged processes, or withdraws that permission. Returns the result of
// ChangeWindowMessageFilterEx (looked up at run time) for the same arguments; `filterStatus` may be
// null. Before Windows 7, and when ChangeWindowMessageFilterEx is missing, changes nothing and
// returns false.
bool AllowWindowMessage(HWND window, UINT message, DWORD action, CHANGEFILTERSTRUCT* filterStatus);

}  // namespace kelvo
