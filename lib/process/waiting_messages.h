#pragma once

#include <cstdint>

namespace kelvo {

// Dispatches the calling thread's waiting messages. Returns 0 when none is left, or WM_CLOSE (16)
// as soon as one was dispatched, which leaves the others waiting. Does not wait for messages; the
// window procedures that it calls may. WM_QUIT is removed like any other message.
std::uint32_t PumpWaitingMessages();

}  // namespace kelvo
