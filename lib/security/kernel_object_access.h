#pragma once

#include <windows.h>

namespace kelvo {

// Grants the current user `mask` on a kernel object, by adding an entry to its DACL. The handle
// needs READ_CONTROL and WRITE_DAC. Returns TRUE always; that a step failed, and which, is only
// traced. An object without a DACL stays as it is. Where the DACL is present but null, which lets
// everyone in, it gets one with this entry alone, which shuts the others out. Each call leaves its
// buffers allocated.
BOOL ModifySecurity(HANDLE object, DWORD mask);

}  // namespace kelvo
