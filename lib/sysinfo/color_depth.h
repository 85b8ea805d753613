#pragma once

#include <windows.h>

namespace kelvo {

// How many bits a pixel of a device has: its planes times its bits per plane (GetDeviceCaps with
// PLANES and BITSPIXEL). Both operations ask the desktop window's device when `device` is null,
// release it again, and return false when there is none.

// Returns true for 32 bits per pixel or more; 24 do not count.
bool IsFullResolution(HDC device = nullptr);

// Returns true for 16 bits per pixel or fewer.
bool IsLowResolution(HDC device = nullptr);

}  // namespace kelvo
