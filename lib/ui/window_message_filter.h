#pragma once

#include <windows.h>

namespace kelvo {

// Lets `window` receive `message` from less privileged processes, or no longer, as `action` says:
// the answer of ChangeWindowMessageFilterEx (looked up at run time) with the same arguments.
// `filterStatus` may be null. False, with nothing changed, before Windows 7 and where the function
// is missing.
bool AllowWindowMessage(HWND window, UINT message, DWORD action, CHANGEFILTERSTRUCT* filterStatus);

}  // namespace kelvo
