#include "lib/sysinfo/color_depth.h"

#include <cmath>

namespace kelvo {

namespace {

// Slightly less than 2 to the power of 32, the number of colors at 32 bits per pixel.
constexpr double kMinFullColors = 4294697000.0;
constexpr double kMaxLowColors = 65536.0;

double CountDeviceColors(HDC device) {
  return std::pow(2.0, GetDeviceCaps(device, PLANES) * GetDeviceCaps(device, BITSPIXEL));
}

// For a null `device`, uses the desktop window's device context, and returns 0 when GetDC fails.
double CountColors(HDC device) {
  if (device != nullptr) {
    return CountDeviceColors(device);
  }
  const HWND desktop = GetDesktopWindow();
  const HDC desktopDevice = GetDC(desktop);
  if (desktopDevice == nullptr) {
    return 0.0;
  }
  const double colors = CountDeviceColors(desktopDevice);
  ReleaseDC(desktop, desktopDevice);
  return colors;
}

}  // namespace

bool IsFullResolution(HDC device) { return CountColors(device) >= kMinFullColors; }

bool IsLowResolution(HDC device) {
  const double colors = CountColors(device);
  return colors > 0.0 && colors <= kMaxLowColors;
}

}  // namespace kelvo
