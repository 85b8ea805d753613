#pragma once

#include <windows.h>

namespace kelvo {

// Returns a TOKEN_PRIVILEGES structure with those privileges in `names` that this system supports
// (LookupPrivilegeValueW). Each privilege is marked as enabled and as enabled by default. The
// structure is one memory block: 4 bytes, plus 12 bytes for each privilege. The caller frees the
// block with LocalFree. `names` is an array that ends with a null pointer; a null `names` counts as
// an empty array. If `useBuiltIn` is true, `names` is ignored and a built-in list is used: 25
// names, of which three are listed twice (28 entries). `count` receives the number of entries in
// the structure and must not be null. When memory runs out, returns null and traces a message. The
// message mentions an exception instead of the lack of memory.
TOKEN_PRIVILEGES* CreateTokenPriv(DWORD* count, const wchar_t* const* names, BOOL useBuiltIn);

}  // namespace kelvo
