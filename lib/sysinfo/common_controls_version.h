#pragma once

#include <windows.h>

namespace kelvo {

// Stores the version of the common controls: the version that DllGetVersion of "comctl32.dll"
// reports, or 4.0 when that library does not export DllGetVersion. Loads the library for the
// duration of the call, without giving a path: the process's manifest and DLL search order decide
// which copy is loaded. On the same computer, the version is 6.x in a program whose manifest asks
// for version 6, and 5.x in any other program. Stores nothing on failure. Returns one of these:
//   - the success code that DllGetVersion returned, or S_OK when the library does not export
//     that function
//   - E_INVALIDARG when a pointer is null or cannot be written to (IsBadWritePtr)
//   - E_FAIL when the library does not load or DllGetVersion fails
HRESULT GetComCtlVersion(DWORD* major, DWORD* minor);

// Calls GetComCtlVersion and returns (major << 16) | (minor & 0xFFFF), or 0 when that call fails.
DWORD GetComCtlVersionPacked();

}  // namespace kelvo
