#pragma once

#include <cstdint>

namespace kelvo {

// Checks whether this process's session is a remote session. Copies the name of the client computer
// to `buffer` (WTSQuerySessionInformationW, looked up at run time, with WTSClientName for the
// current session). Returns 0 (a remote session) when the client's name is not empty and differs
// from this computer's NetBIOS name. Returns -1 (not a remote session) when the client's name is
// empty or is this computer's name. The comparison ignores letter case.
//
// `capacity` is the size of `buffer` in characters, including the NUL. A name that does not fit is
// truncated before the comparison. Returns -1 and leaves `buffer` unchanged when `buffer` is null,
// `capacity` is below 1, or Windows returns no string. No exception leaves the function.
std::int32_t GetRemoteClientName(wchar_t* buffer, int capacity);

}  // namespace kelvo
