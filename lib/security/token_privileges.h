#pragma once

#include <windows.h>

namespace kelvo {

// Returns a privilege set of the named privileges, without those that this system does not support
// (LookupPrivilegeValueW); each is enabled and enabled by default. The set is a block of 4 bytes
// and 12 for each privilege, which the caller frees with LocalFree. `names` ends with a null
// pointer; null counts as an empty list. With `useBuiltIn`, the library's own list replaces it: 25
// names, three of them twice. `count` receives the number of privileges in the set and must not be
// null. Returns null, and traces why, when memory runs out.
TOKEN_PRIVILEGES* CreateTokenPriv(DWORD* count, const wchar_t* const* names, BOOL useBuiltIn);

}  // namespace kelvo
