#include "lib/ui/monitor_area.h"

#include <tuple>

#include "tests/support/catch.h"
#include "tests/support/replaced_import.h"

namespace kelvo {

TEST_CASE("the nearest monitor's area is given where it can be told, else the primary one's") {
  const auto find = +[](POINT point, DWORD flags) {
    return reinterpret_cast<HMONITOR>(INT_PTR{point.x} * static_cast<int>(flags));
  };
  const auto describe = +[](HMONITOR monitor, MONITORINFO* info) -> BOOL {
    const auto number = static_cast<LONG>(reinterpret_cast<INT_PTR>(monitor));
    info->rcMonitor = {number, 1, 2, static_cast<LONG>(info->cbSize)};
    info->rcWork = {number, 11, 12, 13};
    return FALSE;
  };
  MONITORINFO primary{40, {}, {}, 0};
  GetMonitorInfoW(MonitorFromPoint({0, 0}, MONITOR_DEFAULTTOPRIMARY), &primary);
  const MONITORINFO nearest{40, {10, 1, 2, 40}, {10, 11, 12, 13}, 0};
  const std::tuple<int, LONG, const char*, MONITORINFO> rows[] = {
      {2, 5, "", nearest},
      {1, 5, "", primary},
      {2, 0, "", primary},  // no monitor found
      {2, 5, "MonitorFromPoint", primary},
      {2, 5, "GetMonitorInfoA", primary},
  };
  for (const auto& [monitors, x, missing, expected] : rows) {
    CAPTURE(monitors, x, missing);
    const auto metrics = KELVO_REPLACE_IMPORT(GetSystemMetrics, [&](auto original, int index) {
      return index == SM_CMONITORS ? monitors : original(index);
    });
    const test::ReplacedExport finder("MonitorFromPoint", reinterpret_cast<void*>(find));
    const test::ReplacedExport describer("GetMonitorInfoA", reinterpret_cast<void*>(describe));
    const test::ReplacedExport absent(missing, nullptr);
    RECT rect{};
    CHECK((GetMonitorWorkArea({x, 0}, rect) && EqualRect(&rect, &expected.rcWork)));
    CHECK((GetMonitorArea({x, 0}, rect) && EqualRect(&rect, &expected.rcMonitor)));
  }
}

}  // namespace kelvo
