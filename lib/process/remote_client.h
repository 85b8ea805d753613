#pragma once

#include <cstdint>

namespace kelvo {

// Checks whether this process's session is used from another computer. Returns 0, with that
// computer's name in `buffer`, when the session has a remote client whose name is not empty and
// differs from this computer's NetBIOS name. The comparison ignores letter case. Otherwise returns
// -1: if Windows returned a client name, that name is in `buffer`; if not, `buffer` is unchanged.
//
// `capacity` is in characters, including the NUL. A client name that does not fit is cut before the
// comparison. Returns -1 for a null buffer and for a capacity below 1. Uses
// WTSQuerySessionInformationW (WTSClientName of the current session), looked up at run time. No
// exception leaves the function.
std::int32_t GetRemoteClientName(wchar_t* buffer, int capacity);

}  // namespace kelvo
