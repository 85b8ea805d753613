#include "lib/ui/window_message_filter.h"

#include "tests/support/catch.h"
#include "tests/support/replaced_import.h"

namespace kelvo {

TEST_CASE("a message filter is changed from Windows 7 on where the function is there") {
  const auto change = +[](HWND window, UINT message, DWORD action, CHANGEFILTERSTRUCT* status) {
    return window == nullptr && message == 9 && action == 1 && status == nullptr ? 2 : FALSE;
  };
  const test::ReplacedExport filter("ChangeWindowMessageFilterEx", reinterpret_cast<void*>(change));
  CHECK_FALSE(AllowWindowMessage(nullptr, 9, 0, nullptr));
  for (const DWORD minor : {0U, 1U}) {
    const auto version = KELVO_REPLACE_IMPORT(GetVersionExW, [&](auto, OSVERSIONINFOW* record) {
      *record = {276, 6, minor, 0, VER_PLATFORM_WIN32_NT, L""};
      return TRUE;
    });
    CHECK(AllowWindowMessage(nullptr, 9, 1, nullptr) == (minor == 1));
  }
  const test::ReplacedExport absent("ChangeWindowMessageFilterEx", nullptr);
  CHECK_FALSE(AllowWindowMessage(nullptr, 9, 1, nullptr));
}

}  // namespace kelvo
