#include "lib/ui/window_message_filter.h"

#include "tests/support/testing.h"

TEST_CASE("a message filter is changed from Windows 7 on where the function is there") {
  const auto change = +[](HWND window, UINT message, DWORD action, CHANGEFILTERSTRUCT* status) {
    return window == nullptr && message == 9 && action == 1 && status == nullptr ? 2 : FALSE;
  };
  for (const auto& [minor, function, answer] :
       {std::tuple(0U, change, false), {1U, change, true}, {1U, decltype(change){}, false}}) {
    const auto windows = PretendWindows(2, 6, minor);
    const ReplacedExport filter("ChangeWindowMessageFilterEx", function);
    CHECK(AllowWindowMessage(nullptr, 9, 1, nullptr) == answer);
    CHECK_FALSE(AllowWindowMessage(nullptr, 9, 0, nullptr));
  }
}
