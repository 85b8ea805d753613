#pragma once

#include <cstdint>

namespace kelvo {

// Checks whether this process's session is used from another computer, the remote client. Returns
// 0, with the client's name in `buffer`, when that name is not empty and differs from this
// computer's NetBIOS name. The comparison ignores letter case. Otherwise returns -1. In that case,
// `buffer` holds the client name that Windows returned, which may be empty. When Windows returned
// no string at all, `buffer` is unchanged.
//
// `capacity` is in characters, including the NUL. A client name that does not fit is truncated
// before the comparison. Returns -1 for a null buffer and for a capacity below 1. Uses
// WTSQuerySessionInformationW (WTSClientName of the current session), looked up at run time. No
// exception leaves the function.
std::int32_t GetRemoteClientName(wchar_t* buffer, int capacity);

}  // namespace kelvo
