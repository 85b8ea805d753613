#pragma once

#include <cstdint>

namespace kelvo {

// Dispatches the messages in the calling thread's queue until the queue is empty, and then returns
// 0. As soon as a posted WM_CLOSE has been dispatched, returns WM_CLOSE (16) and leaves later
// messages in the queue. Does not wait for messages, but a window procedure that it calls may wait.
// WM_QUIT does not make the function return: this message is removed like any other message.
std::uint32_t PumpWaitingMessages();

}  // namespace kelvo
