#include "tool/console_report.h"

#include "tests/support/testing.h"
#include "tool/driver_interface.h"

TEST_CASE("FormatSystemMessage: returns the message, or an empty string if FormatMessageW fails") {
  DWORD answer = 0;
  REPLACE(FormatMessageW, [&](auto, auto, auto, auto, auto, LPWSTR buffer, auto, auto) {
    // Leaves text in the buffer even when it fails (returns 0).
    lstrcpyW(buffer, L"half a text");
    return answer;
  });
  CHECK(FormatSystemMessage(0xC1) == L"");
  answer = 11;
  CHECK(FormatSystemMessage(0xC1) == L"half a text");
}

TEST_CASE("DifxLogCallback: lets no exception escape") {
  bool writes = false;
  REPLACE(WriteFile, [&](auto...) {
    writes = true;
    return writes ? throw std::bad_alloc() : TRUE;
  });
  DifxLogCallback(DIFXAPI_ERROR, 5, nullptr, nullptr);
  CHECK(writes);
}
