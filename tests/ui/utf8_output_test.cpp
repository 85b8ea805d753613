#include "lib/ui/utf8_output.h"

#include "tests/support/testing.h"

// Characters of two, three and four bytes; the last one has two units.
const std::string kText = "a\xC3\xA9\n\xE2\x82\xAC\xF0\x9F\x98\x80\n";
const std::string kBytes = "a\xC3\xA9\r\n\xE2\x82\xAC\xF0\x9F\x98\x80\r\n";
const std::wstring kUnits = L"a\u00E9\r\n\u20AC\U0001F600\r\n";

TEST_CASE(
    "WriteUtf8 writes units to a console and bytes to a file, and returns whether it was all") {
  struct Row {
    bool isConsole;
    DWORD written;
    BOOL succeeds;
    bool isAll;
  };
  for (const auto& [isConsole, done, succeeds, isAll] : {Row{true, 9, TRUE, true},
                                                         {true, 8, TRUE, false},
                                                         {true, 9, FALSE, false},
                                                         {false, 14, TRUE, true},
                                                         {false, 13, TRUE, false},
                                                         {false, 14, FALSE, false}}) {
    CAPTURE(isConsole);
    CAPTURE(done);
    CAPTURE(succeeds);
    std::wstring units;
    std::string bytes;
    const auto errors = reinterpret_cast<HANDLE>(std::uintptr_t{STD_ERROR_HANDLE});
    REPLACE(GetStdHandle,
            [](auto, DWORD device) { return reinterpret_cast<HANDLE>(std::uintptr_t{device}); });
    REPLACE(GetConsoleMode, [&](auto, HANDLE asked, auto) {
      CHECK(asked == errors);
      return isConsole ? TRUE : FALSE;
    });
    REPLACE(WriteConsoleW, [&](auto, HANDLE to, auto text, DWORD length, DWORD* written, auto) {
      CHECK(to == errors);
      units.append(static_cast<const wchar_t*>(text), length);
      *written = done;
      return succeeds;
    });
    REPLACE(WriteFile, [&](auto, HANDLE to, auto text, DWORD size, DWORD* written, auto) {
      CHECK(to == errors);
      bytes.append(static_cast<const char*>(text), size);
      *written = done;
      return succeeds;
    });
    CHECK(WriteUtf8(STD_ERROR_HANDLE, kText) == isAll);
    CHECK(units == (isConsole ? kUnits : L""));
    CHECK(bytes == (isConsole ? "" : kBytes));
    CHECK(WriteUtf8(STD_ERROR_HANDLE, ""));
  }
}
