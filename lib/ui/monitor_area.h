#pragma once

#include <windows.h>

namespace kelvo {

// Both functions store an area of the monitor nearest to a point, in screen coordinates, and always
// return true. With one monitor, where MonitorFromPoint or GetMonitorInfoA (looked up at run time)
// is missing, and when MonitorFromPoint finds no monitor, the point is ignored and the area is that
// of the primary monitor. When GetMonitorInfoA fails, the area is empty; when SystemParametersInfoW
// does, `rect` is unchanged.

// The area without the task bar (rcWork, or SPI_GETWORKAREA for the primary monitor).
bool GetMonitorWorkArea(POINT point, RECT& rect);

// The full area (rcMonitor, or the size of the primary screen from (0, 0) on).
bool GetMonitorArea(POINT point, RECT& rect);

}  // namespace kelvo
