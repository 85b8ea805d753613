#include "lib/ui/window_message_filter.h"

#include "tests/support/testing.h"

TEST_CASE("AllowWindowMessage: changes the filter only on Windows 7 and later") {
  using Call = std::tuple<HWND, UINT, DWORD, CHANGEFILTERSTRUCT*>;
  static Call seen;
  static BOOL answer;
  const auto change = +[](HWND window, UINT message, DWORD action, CHANGEFILTERSTRUCT* status) {
    seen = {window, message, action, status};
    return answer;
  };
  CHANGEFILTERSTRUCT status{};
  const Call given{GetDesktopWindow(), 9, MSGFLT_DISALLOW, &status};
  for (const auto& [minor, function, functionAnswer, expected] :
       {std::tuple{0UL, change, TRUE, false},
        {1UL, change, 2, true},
        {1UL, change, FALSE, false},
        {1UL, nullptr, TRUE, false}}) {
    const auto windows = PretendWindows(2, 6, minor);
    const ReplacedExport filter("ChangeWindowMessageFilterEx", function);
    seen = {};
    answer = functionAnswer;
    CHECK(std::apply(AllowWindowMessage, given) == expected);
    CHECK((seen == given) == (minor == 1 && function != nullptr));
  }
}
