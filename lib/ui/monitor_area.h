#pragma once

#include <windows.h>

namespace kelvo {

// Areas of the monitor nearest to a screen point, in screen coordinates; always true. With one
// monitor, and where MonitorFromPoint or GetMonitorInfoA (looked up at run time) is missing, the
// point does not matter and the primary monitor's area is given.

// The area without the task bar (rcWork, or SPI_GETWORKAREA for the primary monitor).
bool GetMonitorWorkArea(POINT point, RECT& rect);

// The full area (rcMonitor, or from (0, 0) on the size of the primary screen).
bool GetMonitorArea(POINT point, RECT& rect);

}  // namespace kelvo
