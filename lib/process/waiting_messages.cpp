#include "lib/process/waiting_messages.h"

#include <windows.h>

namespace kelvo {

std::uint32_t PumpWaitingMessages() {
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
    if (message.message == WM_CLOSE) {
      return WM_CLOSE;
    }
  }
  return 0;
}

}  // namespace kelvo
