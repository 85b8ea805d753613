#pragma once

#include <cstdint>

namespace kelvo {

// Dispatches the messages that wait for the calling thread until there is none left, then returns
// 0, or until a WM_CLOSE was dispatched, then returns WM_CLOSE (16) and leaves the rest waiting.
// Never blocks. WM_QUIT is taken out like any other message.
std::uint32_t PumpWaitingMessages();

}  // namespace kelvo
