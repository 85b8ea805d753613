#include "lib/ui/monitor_area.h"

#include "tests/support/desktop_scope.h"
#include "tests/support/testing.h"

TEST_CASE("GetMonitorArea, GetMonitorWorkArea: choose the nearest monitor, else the primary one") {
  const DesktopScope scope;
  const ReplacedExport find(
      "MonitorFromPoint", +[](POINT point, DWORD flags) {
        return reinterpret_cast<HMONITOR>(INT_PTR{point.x} * point.y * static_cast<int>(flags));
      });
  const ReplacedExport describe(
      "GetMonitorInfoA", +[](HMONITOR monitor, MONITORINFO* info) -> BOOL {
        const auto number = static_cast<LONG>(reinterpret_cast<INT_PTR>(monitor));
        if (info->cbSize != 40) {
          return FALSE;
        }
        *info = {40, {number, 1, 2, 40}, {number, 11, 12, 13}, 0};
        return TRUE;
      });
  MONITORINFO primary{40, {}, {}, 0};
  GetMonitorInfoW(MonitorFromPoint({0, 0}, MONITOR_DEFAULTTOPRIMARY), &primary);
  const MONITORINFO nearest{40, {30, 1, 2, 40}, {30, 11, 12, 13}, 0};
  // At x = 0, the simulated MonitorFromPoint returns null.
  for (const auto& [monitors, x, missing, isNearest] : {std::tuple{2, 5L, "", true},
                                                        {1, 5L, "", false},
                                                        {2, 0L, "", false},
                                                        {2, 5L, "MonitorFromPoint", false},
                                                        {2, 5L, "GetMonitorInfoA", false}}) {
    const MONITORINFO& expected = isNearest ? nearest : primary;
    REPLACE(GetSystemMetrics, [&](auto original, int index) {
      return index == SM_CMONITORS ? monitors : original(index);
    });
    const ReplacedExport absent(missing, nullptr);
    RECT rect{};
    CHECK_BOTH(GetMonitorWorkArea({x, 3}, rect), EqualRect(&rect, &expected.rcWork));
    CHECK_BOTH(GetMonitorArea({x, 3}, rect), EqualRect(&rect, &expected.rcMonitor));
  }
}
