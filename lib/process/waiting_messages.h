#pragma once

#include <cstdint>

namespace kelvo {

// Dispatches the calling thread's waiting messages. Returns 0 when none is left, or WM_CLOSE (16)
// as soon as one was dispatched, which leaves the others waiting. Never blocks. WM_QUIT is removed
// like any other message.
std::uint32_t PumpWaitingMessages();

}  // namespace kelvo
