#pragma once

#include <cstdint>

namespace kelvo {

// Dispatches the messages in the calling thread's queue. Returns 0 when the queue is empty. As soon
// as a WM_CLOSE message has been dispatched, returns WM_CLOSE (16) and leaves later messages in the
// queue. Does not wait for messages, but a called window procedure may wait. WM_QUIT is removed
// like any other message.
std::uint32_t PumpWaitingMessages();

}  // namespace kelvo
