#include "lib/trace/debug_trace.h"

#include "tests/support/testing.h"

TEST_CASE("DebugTrace: writes the time and a message of any length") {
  std::wstring written;
  REPLACE(GetSystemTime, [](auto, auto* time) { *time = {2014, 3, 3, 5, 7, 8, 9, 45}; });
  REPLACE(OutputDebugStringW, [&](auto, const wchar_t* text) { written = text; });
  const std::wstring message(5000, L'\u0416');
  DebugTrace(L"%s%%", message.c_str());
  CHECK(written == L"05.03.2014 07:08:09:045 " + message + L"%");
}
