#pragma once

#include <cstdint>

namespace kelvo {

// Tells whether the user of this process's session sits at another computer: 0, with that
// computer's name in `buffer`, when the session belongs to a remote client whose name differs, in
// more than letter case, from this computer's NetBIOS name; otherwise -1, and the buffer then holds
// whatever client name was compared. `capacity` is in characters; a longer name is cut, the NUL
// included, and compared as cut. A null buffer and a capacity below 1 give -1. Rests on
// WTSQuerySessionInformationW, looked up at run time; no exception leaves.
std::int32_t GetRemoteClientName(wchar_t* buffer, int capacity);

}  // namespace kelvo
