#pragma once

#include <windows.h>

namespace kelvo {

// Both functions find the monitor nearest to `point`, store an area of that monitor in `rect`, in
// screen coordinates, and always return true. Regardless of `point`, they use the primary monitor
// when there is only one monitor, when MonitorFromPoint or GetMonitorInfoA (both looked up at run
// time) is missing, and when MonitorFromPoint finds no monitor. When GetMonitorInfoA fails, `rect`
// becomes all zeros. When SystemParametersInfoW fails, `rect` is unchanged.

// Stores the area without the taskbar: rcWork from GetMonitorInfoA or, for the primary monitor, the
// result of SystemParametersInfoW with SPI_GETWORKAREA.
bool GetMonitorWorkArea(POINT point, RECT& rect);

// Stores the full area: rcMonitor from GetMonitorInfoA or, for the primary monitor, the rectangle
// from (0, 0) to (SM_CXSCREEN, SM_CYSCREEN).
bool GetMonitorArea(POINT point, RECT& rect);

}  // namespace kelvo
