#include "lib/ui/window_message_filter.h"

#include "lib/platform/module.h"
#include "lib/sysinfo/windows_release.h"

namespace kelvo {

bool AllowWindowMessage(HWND window, UINT message, DWORD action, CHANGEFILTERSTRUCT* filterStatus) {
  if (!IsWin7()) {
    return false;
  }
  auto* const changeFilter =
      KELVO_FIND_FUNCTION(GetModuleHandleW(L"user32.dll"), ChangeWindowMessageFilterEx);
  return changeFilter != nullptr && changeFilter(window, message, action, filterStatus) != FALSE;
}

}  // namespace kelvo
