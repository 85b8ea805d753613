#include "lib/trace/debug_trace.h"

#include "tests/support/catch.h"
#include "tests/support/replaced_import.h"

namespace kelvo {

TEST_CASE("a trace line is a time and a message of any length") {
  const SYSTEMTIME time{2014, 3, 3, 5, 7, 8, 9, 45};
  WString written;
  const auto now = KELVO_REPLACE_IMPORT(
      GetSystemTime, [&](auto /*original*/, SYSTEMTIME* asked) { *asked = time; });
  const auto debugger = KELVO_REPLACE_IMPORT(
      OutputDebugStringW, [&](auto /*original*/, const wchar_t* text) { written = text; });
  const WString message(5000, L'\u0416');
  DebugTrace(L"%s%%", message.c_str());
  CHECK(written == WString(L"05.03.2014 07:08:09:045 ") + message + L"%");
}

}  // namespace kelvo
