#pragma once

#include <windows.h>

namespace kelvo {

// A privilege set with each named privilege that this system knows, enabled and enabled by default:
// a block of 4 bytes and 12 for each, which the caller frees with LocalFree. `names` ends with a
// null and may be null itself, which is an empty list; with `useBuiltIn` it is a list of the
// library's own that is taken instead: 25 names, three of which stand twice. `count` receives the
// number of privileges in the set and must not be null. Null, and a trace, when memory is short.
TOKEN_PRIVILEGES* CreateTokenPriv(DWORD* count, const wchar_t* const* names, BOOL useBuiltIn);

}  // namespace kelvo
