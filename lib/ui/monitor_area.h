#pragma once

#include <windows.h>

namespace kelvo {

// Both functions find the monitor nearest to `point` and store an area of this monitor in `rect`,
// in screen coordinates. Both always return true. They read the area with GetMonitorInfoA. When
// GetMonitorInfoA fails, `rect` becomes all zeros. Both functions fall back to the primary monitor
// when there is only one monitor, when user32.dll does not export MonitorFromPoint or
// GetMonitorInfoA (this is checked at run time), or when MonitorFromPoint finds no monitor.

// Stores the monitor's area without the taskbar (rcWork). After falling back to the primary
// monitor, stores the result of SystemParametersInfoW with SPI_GETWORKAREA instead. When
// SystemParametersInfoW fails, `rect` is unchanged.
bool GetMonitorWorkArea(POINT point, RECT& rect);

// Stores the monitor's full area (rcMonitor). After falling back to the primary monitor, stores the
// rectangle from (0, 0) to (SM_CXSCREEN, SM_CYSCREEN) instead.
bool GetMonitorArea(POINT point, RECT& rect);

}  // namespace kelvo
