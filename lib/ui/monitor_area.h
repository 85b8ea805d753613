#pragma once

#include <windows.h>

namespace kelvo {

// Both functions store an area of the monitor nearest to a point, in screen coordinates, and always
// return true. They use the primary monitor, whatever the point, when there is only one monitor,
// when MonitorFromPoint or GetMonitorInfoA (looked up at run time) is missing, and when
// MonitorFromPoint finds no monitor. When GetMonitorInfoA fails, the area is empty. When
// SystemParametersInfoW fails, `rect` is unchanged.

// The area without the taskbar (rcWork, or SPI_GETWORKAREA for the primary monitor).
bool GetMonitorWorkArea(POINT point, RECT& rect);

// The full area (rcMonitor, or the size of the primary screen from (0, 0) on).
bool GetMonitorArea(POINT point, RECT& rect);

}  // namespace kelvo
