#include "lib/string/compare_no_case.h"

#include <clocale>

#include "tests/support/catch.h"

namespace kelvo {

TEST_CASE("texts are compared by their lower-case units") {
  struct Row {
    const wchar_t* a;
    const wchar_t* b;
    int difference;
  };
  const Row rows[] = {
      {L"Foo", L"fOO", 0},         {L"", L"", 0},
      {L"a", L"ab", -L'b'},        {L"AB", L"a", L'b'},
      {L"Z", L"[", L'z' - L'['},   {L"\u00C9", L"\u00E9", -0x20},  // not folded below U+0100
      {L"\u0416", L"\u0436", 0},                                   // Cyrillic is
      {L"\u0130x", L"\u0130X", 0},  // no folding may change the length
      {L"\uFFFF", L"\uFFFE", 1},   {L"\uFFFF", L"a", 0xFFFF - L'a'},  // unsigned
  };
  for (const Row& row : rows) {
    CAPTURE(row.a, row.b);
    CHECK(CompareNoCase(row.a, row.b) == row.difference);
  }
}

TEST_CASE("another locale's own lower-case mapping decides when it is set") {
  REQUIRE(std::setlocale(LC_CTYPE, "") != nullptr);
  const int difference = CompareNoCase(L"\u00C9", L"\u00E9");
  const bool folds = std::towlower(0xC9) == 0xE9;
  std::setlocale(LC_CTYPE, "C");
  CHECK((difference == 0) == folds);
}

}  // namespace kelvo
