#pragma once

#include <windows.h>

namespace kelvo {

// Returns a set of those privileges in `names` that this system supports (LookupPrivilegeValueW).
// Each privilege is marked as enabled and as enabled by default. The set is one memory block: 4
// bytes, plus 12 bytes for each privilege. The caller frees the block with LocalFree. `names` is an
// array that ends with a null pointer; a null `names` counts as an empty array. If `useBuiltIn` is
// true, `names` is ignored and a built-in list is used: 25 names, of which three are listed twice
// (28 entries). `count` receives the number of privileges in the set and must not be null. When
// memory runs out, returns null and traces a message, which mentions an exception instead of
// memory.
TOKEN_PRIVILEGES* CreateTokenPriv(DWORD* count, const wchar_t* const* names, BOOL useBuiltIn);

}  // namespace kelvo
