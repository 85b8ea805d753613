#pragma once

#include <windows.h>

namespace kelvo {

// Grants the current user the rights in `mask` to a kernel object, by changing the object's DACL
// (SetEntriesInAclW with GRANT_ACCESS, SetKernelObjectSecurity). The user is identified by a name
// without a domain (GetUserNameW), which is ambiguous if a local account and a domain account have
// the same name. The handle needs READ_CONTROL and WRITE_DAC. Always returns TRUE, even when a step
// fails or an exception occurs. Traces a failed step (lib/trace/trace_sink.h), but not an
// exception. If the object's security descriptor has no DACL (SE_DACL_PRESENT is not set), the
// object is left unchanged. A null DACL (SE_DACL_PRESENT is set), which gives everyone access, is
// replaced with a DACL that contains only the new ACE: all other accounts lose their access. Each
// call leaks the buffers that it allocates.
BOOL ModifySecurity(HANDLE object, DWORD mask);

}  // namespace kelvo
