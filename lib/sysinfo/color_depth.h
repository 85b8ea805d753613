#pragma once

#include <windows.h>

namespace kelvo {

// How many colours a device shows: 2 to the power of its planes times its bits per pixel
// (GetDeviceCaps). Both ask the desktop window's device when none is given, and are false when that
// cannot be had.

// 32 bits per pixel or more; 24 do not count.
bool IsFullResolution(HDC device = nullptr);

// 16 bits per pixel or fewer.
bool IsLowResolution(HDC device = nullptr);

}  // namespace kelvo
