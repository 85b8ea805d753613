#pragma once

#include <windows.h>

namespace kelvo {

// Both functions test the color depth of a device. The color depth, in bits per pixel, is PLANES
// (the number of color planes) multiplied by BITSPIXEL (the bits per pixel in each plane). Both
// values come from GetDeviceCaps. For a null `device`, the functions get the desktop window's
// device context (GetDC) and release it after use. If GetDC fails, they return false.

// Returns true for 32 bits per pixel or more; 24 bits are not enough.
bool IsFullResolution(HDC device = nullptr);

// Returns true for 16 bits per pixel or fewer.
bool IsLowResolution(HDC device = nullptr);

}  // namespace kelvo
