#pragma once

#include <windows.h>

namespace kelvo {

// Both functions test the color depth of a device in bits per pixel. This is the number of planes
// (GetDeviceCaps with PLANES) times the bits per pixel in each plane (BITSPIXEL). For a null
// `device`, the functions get the desktop window's device context and release it after use. If they
// get no device context, they return false.

// Returns true for 32 bits per pixel or more; 24 bits are not enough.
bool IsFullResolution(HDC device = nullptr);

// Returns true for 16 bits per pixel or fewer.
bool IsLowResolution(HDC device = nullptr);

}  // namespace kelvo
