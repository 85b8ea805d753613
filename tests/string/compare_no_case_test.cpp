#include "lib/string/compare_no_case.h"

#include <clocale>
#include <cwctype>

#include "tests/support/testing.h"

TEST_CASE("CompareNoCase: in the C locale, folds only A to Z and the units from U+0100 up") {
  CHECK(CompareNoCase(L"Foo\u0100B", L"fOO\u0101") == L'b');
  CHECK(CompareNoCase(L"a", L"ab") == -L'b');
  CHECK(CompareNoCase(L"Z", L"[") == L'z' - L'[');
  CHECK(CompareNoCase(L"[", L"{") == L'[' - L'{');
  CHECK(CompareNoCase(L"\u00C9", L"\u00E9") == -0x20);
  CHECK(CompareNoCase(L"\uFFFF", L"\uFFFE") == 1);
  for (unsigned unit = 0x100; unit < 0xFFFF; ++unit) {
    const wchar_t text[] = {static_cast<wchar_t>(unit), L'\0'};
    wchar_t folded = L'\0';
    LCMapStringW(LOCALE_INVARIANT, LCMAP_LOWERCASE, text, 1, &folded, 1);
    CHECK(CompareNoCase(text, L"A") == folded - L'a');
  }
}

TEST_CASE("CompareNoCase: depends on LC_CTYPE, not on other locale categories") {
  REQUIRE(std::setlocale(LC_NUMERIC, "") != nullptr);
  CHECK(CompareNoCase(L"\u0416", L"\u0436") == 0);
  REQUIRE(std::setlocale(LC_CTYPE, "") != nullptr);
  const bool isEqual = CompareNoCase(L"\u00C9", L"\u00E9") == 0;
  const bool folds = std::towlower(0xC9) == 0xE9;
  std::setlocale(LC_ALL, "C");
  CHECK(isEqual == folds);
}
