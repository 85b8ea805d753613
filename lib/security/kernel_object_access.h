#pragma once

#include <windows.h>

namespace kelvo {

// Adds an entry that allows `mask` for the current user, by the bare name (GetUserNameW), which a
// local account may share with one of a domain, to a kernel object's DACL (SetEntriesInAclW,
// SetKernelObjectSecurity). The handle needs READ_CONTROL and WRITE_DAC. Always returns TRUE; a
// failed step is only traced. An object without a DACL stays as it is. A DACL that is present but
// null, which lets everyone in, becomes one with this entry alone, which shuts the others out. Each
// call leaves its buffers allocated.
BOOL ModifySecurity(HANDLE object, DWORD mask);

}  // namespace kelvo
