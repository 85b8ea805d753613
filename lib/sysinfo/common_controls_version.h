#pragma once

#include <windows.h>

namespace kelvo {

// Stores the version of the common controls, as reported by the function DllGetVersion in
// "comctl32.dll". When the library does not export this function, stores 4.0. Loads the library for
// the duration of the call. Specifies no path, so the process's manifest and DLL search order
// decide which copy is loaded. From Windows XP on, the version is 6.x in a program whose manifest
// asks for version 6, and 5.x in any other program. On failure, stores nothing. Returns one of
// these:
//   - the success code that DllGetVersion returned, or S_OK when the library does not export
//     that function
//   - E_INVALIDARG when `major` or `minor` is null or points to memory that cannot be written to
//     (IsBadWritePtr)
//   - E_FAIL when the library cannot be loaded or DllGetVersion fails
HRESULT GetComCtlVersion(DWORD* major, DWORD* minor);

// Calls GetComCtlVersion and returns (major << 16) | (minor & 0xFFFF), or 0 when that call fails.
DWORD GetComCtlVersionPacked();

}  // namespace kelvo
