#pragma once

#include <cstdint>

namespace kelvo {

// Finds out whether the user of this process's session sits at another computer. Returns 0, with
// that computer's name in `buffer`, when the session has a remote client whose name is not empty
// and differs, in more than letter case, from this computer's NetBIOS name. Returns -1 otherwise:
// `buffer` then holds the client's name when Windows returned one, and is unchanged when it did
// not.
//
// `capacity` is in characters, the NUL included; a longer name is cut, and compared as cut. Returns
// -1 for a null buffer and for a capacity below 1. Uses WTSQuerySessionInformationW (WTSClientName
// of the current session), looked up at run time. No exception leaves the function.
std::int32_t GetRemoteClientName(wchar_t* buffer, int capacity);

}  // namespace kelvo
