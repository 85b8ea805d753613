#pragma once

#include <windows.h>

namespace kelvo {

// Adds an ACE to a kernel object's DACL that grants the current user `mask` (SetEntriesInAclW,
// SetKernelObjectSecurity). The user is identified by name without a domain (GetUserNameW), which a
// local account may share with a domain account. The handle needs READ_CONTROL and WRITE_DAC.
// Always returns TRUE; a failed step is only traced. An object without a DACL is left unchanged. A
// DACL that is present but null, which gives everyone access, becomes one with this ACE alone,
// which locks the others out. Each call leaves its buffers allocated.
BOOL ModifySecurity(HANDLE object, DWORD mask);

}  // namespace kelvo
