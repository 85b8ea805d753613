#pragma once

#include <windows.h>

namespace kelvo {

// Both functions store an area of a monitor in `rect`, in screen coordinates, and always return
// true. The monitor is the one nearest to `point`. Both functions fall back to the primary monitor
// when there is only one monitor, when MonitorFromPoint or GetMonitorInfoA is missing (they are
// looked up at run time), and when MonitorFromPoint finds no monitor. When GetMonitorInfoA fails,
// `rect` becomes all zeros.

// Stores the area without the taskbar: rcWork from GetMonitorInfoA or, in the fallback, the result
// of SystemParametersInfoW with SPI_GETWORKAREA. When SystemParametersInfoW fails, `rect` is
// unchanged.
bool GetMonitorWorkArea(POINT point, RECT& rect);

// Stores the full area: rcMonitor from GetMonitorInfoA or, in the fallback, the rectangle from
// (0, 0) to (SM_CXSCREEN, SM_CYSCREEN).
bool GetMonitorArea(POINT point, RECT& rect);

}  // namespace kelvo
