#pragma once

#include <cstdint>

namespace kelvo {

// Dispatches the messages in the calling thread's queue. Returns 0 when none is left, or WM_CLOSE
// (16) as soon as one was dispatched, leaving the rest in the queue. Does not wait for messages,
// though the window procedures that it calls may. WM_QUIT is removed like any other message.
std::uint32_t PumpWaitingMessages();

}  // namespace kelvo
