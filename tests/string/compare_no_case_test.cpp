#include "lib/string/compare_no_case.h"

#include <clocale>
#include <cwctype>

#include "tests/support/testing.h"

TEST_CASE("texts are compared by their lower-case units") {
  // Below U+0100 only A to Z are folded; above, whatever the system maps to one unit.
  CHECK(CompareNoCase(L"Foo\u0100B", L"fOO\u0101") == L'b');
  CHECK(CompareNoCase(L"a", L"ab") == -L'b');
  CHECK(CompareNoCase(L"Z", L"[") == L'z' - L'[');
  CHECK(CompareNoCase(L"[", L"{") == L'[' - L'{');
  CHECK(CompareNoCase(L"\u00C9", L"\u00E9") == -0x20);
  CHECK(CompareNoCase(L"\u0416", L"A") == 0x0436 - L'a');
  CHECK(CompareNoCase(L"\u0130x", L"\u0130X") == 0);
  CHECK(CompareNoCase(L"\uFFFF", L"\uFFFE") == 1);
}

TEST_CASE("the locale of characters says how texts are compared, no other") {
  REQUIRE(std::setlocale(LC_NUMERIC, "") != nullptr);
  CHECK(CompareNoCase(L"\u0416", L"\u0436") == 0);
  REQUIRE(std::setlocale(LC_CTYPE, "") != nullptr);
  const bool isEqual = CompareNoCase(L"\u00C9", L"\u00E9") == 0;
  const bool folds = std::towlower(0xC9) == 0xE9;
  std::setlocale(LC_ALL, "C");
  CHECK(isEqual == folds);
}
