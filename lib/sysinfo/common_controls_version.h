#pragma once

#include <windows.h>

namespace kelvo {

// Stores the version of the common controls that this process gets, as DllGetVersion of
// "comctl32.dll" reports it; 4.0 when the library does not export that function. The library is
// loaded for the call, by this name alone: the process's manifest and search order decide which
// copy that is, so a program whose manifest asks for version 6 reads 6.x and another 5.x on the
// same Windows. Returns what DllGetVersion returned, S_OK or another success code; S_OK without
// that function. Stores nothing and returns E_INVALIDARG when one of the pointers is null or cannot
// be written to (IsBadWritePtr), E_FAIL when the library does not load or DllGetVersion fails.
HRESULT GetComCtlVersion(DWORD* major, DWORD* minor);

// Returns the version that GetComCtlVersion stores as (major << 16) | (minor & 0xFFFF); 0 when that
// fails.
DWORD GetComCtlVersionPacked();

}  // namespace kelvo
