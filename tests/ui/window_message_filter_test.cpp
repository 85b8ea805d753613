#include "lib/ui/window_message_filter.h"

#include "tests/support/testing.h"

TEST_CASE("a message filter is changed from Windows 7 on where the function is there") {
  using Call = std::tuple<HWND, UINT, DWORD, CHANGEFILTERSTRUCT*>;
  static Call seen;
  static BOOL answer;
  const auto change = +[](HWND window, UINT message, DWORD action, CHANGEFILTERSTRUCT* status) {
    seen = {window, message, action, status};
    return answer;
  };
  struct Row {
    DWORD minor;
    decltype(change) function;
    BOOL functionAnswer;
    bool answer;
  };
  CHANGEFILTERSTRUCT status{};
  const Call given{GetDesktopWindow(), 9, MSGFLT_DISALLOW, &status};
  for (const Row& row : {Row{0, change, TRUE, false}, Row{1, change, 2, true},
                         Row{1, change, FALSE, false}, Row{1, nullptr, TRUE, false}}) {
    const auto windows = PretendWindows(2, 6, row.minor);
    const ReplacedExport filter("ChangeWindowMessageFilterEx", row.function);
    seen = {};
    answer = row.functionAnswer;
    CHECK(std::apply(AllowWindowMessage, given) == row.answer);
    CHECK((seen == given) == (row.minor == 1 && row.function != nullptr));
  }
}
