#pragma once

#include <windows.h>

namespace kelvo {

// The color depth of a device in bits per pixel: its planes times its bits per plane (GetDeviceCaps
// with PLANES and BITSPIXEL). For a null `device`, both functions use the desktop window's device
// context and release it; they return false when there is none.

// Returns true for 32 bits per pixel or more; 24 do not count.
bool IsFullResolution(HDC device = nullptr);

// Returns true for 16 bits per pixel or fewer.
bool IsLowResolution(HDC device = nullptr);

}  // namespace kelvo
