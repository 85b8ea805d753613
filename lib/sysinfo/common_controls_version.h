#pragma once

#include <windows.h>

namespace kelvo {

// Stores the version of the common controls that this process gets, as reported by DllGetVersion of
// "comctl32.dll", or 4.0 when the library does not export that function. The library is loaded by
// name for the call, so the process's manifest and search order decide which copy that is: on the
// same Windows, a program whose manifest asks for version 6 reads 6.x, another 5.x. Returns one of
// these, and stores nothing on failure:
//   - S_OK or another success code, as DllGetVersion returned it; S_OK without that function
//   - E_INVALIDARG when a pointer is null or cannot be written to (IsBadWritePtr)
//   - E_FAIL when the library does not load or DllGetVersion fails
HRESULT GetComCtlVersion(DWORD* major, DWORD* minor);

// Returns the version that GetComCtlVersion stores as (major << 16) | (minor & 0xFFFF); 0 when that
// fails.
DWORD GetComCtlVersionPacked();

}  // namespace kelvo
