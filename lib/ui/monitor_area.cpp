#include "lib/ui/monitor_area.h"

#include "lib/platform/module.h"

namespace kelvo {

namespace {

// Returns false and leaves `rect` unchanged when the caller must use the primary monitor.
bool FindNearestArea(POINT point, RECT MONITORINFO::* area, RECT& rect) {
  if (GetSystemMetrics(SM_CMONITORS) <= 1) {
    return false;
  }
  HMODULE const user32 = GetModuleHandleW(L"user32.dll");
  auto* const findMonitor = KELVO_FIND_FUNCTION(user32, MonitorFromPoint);
  auto* const getInfo = KELVO_FIND_FUNCTION(user32, GetMonitorInfoA);
  if (findMonitor == nullptr || getInfo == nullptr) {
    return false;
  }
  HMONITOR const monitor = findMonitor(point, MONITOR_DEFAULTTONEAREST);
  if (monitor == nullptr) {
    return false;
  }
  MONITORINFO info{};
  info.cbSize = sizeof(info);
  getInfo(monitor, &info);
  rect = info.*area;
  return true;
}

}  // namespace

bool GetMonitorWorkArea(POINT point, RECT& rect) {
  if (!FindNearestArea(point, &MONITORINFO::rcWork, rect)) {
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &rect, 0);
  }
  return true;
}

bool GetMonitorArea(POINT point, RECT& rect) {
  if (!FindNearestArea(point, &MONITORINFO::rcMonitor, rect)) {
    rect = {.left = 0,
            .top = 0,
            .right = GetSystemMetrics(SM_CXSCREEN),
            .bottom = GetSystemMetrics(SM_CYSCREEN)};
  }
  return true;
}

}  // namespace kelvo
