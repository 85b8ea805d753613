#pragma once

#include <windows.h>

namespace kelvo {

// Gives the version of the common-controls library, as DllGetVersion of "comctl32.dll" tells
// it; 4.0 when the library does not export that. E_INVALIDARG when one of the pointers cannot be
// written to, E_FAIL when the library does not load or its DllGetVersion fails; nothing is given
// then.
HRESULT GetComCtlVersion(DWORD* major, DWORD* minor);

// The same as (major << 16) | minor; 0 when it cannot be told.
DWORD GetComCtlVersionPacked();

}  // namespace kelvo
