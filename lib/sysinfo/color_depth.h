#pragma once

#include <windows.h>

namespace kelvo {

// Both functions test a device's color depth in bits per pixel: the number of planes times the bits
// per pixel in each plane (GetDeviceCaps with PLANES and BITSPIXEL). For a null `device`, both
// use the desktop window's device context and release it; they return false when there is none.

// Returns true for 32 bits per pixel or more; 24 bits are not enough.
bool IsFullResolution(HDC device = nullptr);

// Returns true for 16 bits per pixel or fewer.
bool IsLowResolution(HDC device = nullptr);

}  // namespace kelvo
