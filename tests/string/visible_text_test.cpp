#include "lib/string/visible_text.h"

#include "lib/string/utf8.h"
#include "tests/support/testing.h"

TEST_CASE("ToVisibleUtf8: shows characters that control a terminal as <U+XXXX>") {
  const std::tuple<std::wstring, std::string, std::string, std::size_t> rows[] = {
      {L"", "", "", 0},
      {L"a \u00E9\u0416\u20AC", "a \xC3\xA9\xD0\x96\xE2\x82\xAC", "a \xC3\xA9\xD0\x96\xE2\x82\xAC",
       5},
      {L"\U0001F600", "\xF0\x9F\x98\x80", "\xF0\x9F\x98\x80", 1},
      {std::wstring(L"\0\x1B ", 3), std::string("\0\x1B ", 3), "<U+0000><U+001B> ", 17},
      {L"~\x7F\x9F\u00A0", "~\x7F\xC2\x9F\xC2\xA0", "~<U+007F><U+009F>\xC2\xA0", 18},
      {L"\u2027\u2028\u202E\u202F", "\xE2\x80\xA7\xE2\x80\xA8\xE2\x80\xAE\xE2\x80\xAF",
       "\xE2\x80\xA7<U+2028><U+202E>\xE2\x80\xAF", 18},
      {L"\xDE00\xD83D", "\xEF\xBF\xBD\xEF\xBF\xBD", "<U+DE00><U+D83D>", 16},
  };
  for (const auto& [text, utf8, visible, columns] : rows) {
    CAPTURE(text);
    CHECK(ToUtf8(text) == utf8);
    CHECK(ToVisibleUtf8(text) == visible);
    CHECK(CountCharacters(visible) == columns);
  }
  CHECK(ToVisibleUtf8(std::wstring_view(L"\U0001F600", 1)) == "<U+D83D>");
}
