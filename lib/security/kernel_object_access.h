#pragma once

#include <windows.h>

namespace kelvo {

// Grants the current user `mask` on a kernel object, by an entry in its DACL beside those that are
// there. The handle needs READ_CONTROL and WRITE_DAC. Answers TRUE whatever happened: that a step
// failed, and which, is only traced. An object without a DACL stays as it is. Each call leaves its
// buffers allocated.
BOOL ModifySecurity(HANDLE object, DWORD mask);

}  // namespace kelvo
