#include "lib/string/compare_no_case.h"

#include <clocale>
#include <cwctype>

#include "tests/support/testing.h"

TEST_CASE("texts are compared by their lower-case units") {
  // Below U+0100 only A to Z are folded; above, whatever the system maps to one unit.
  struct Row {
    const wchar_t *a, *b;
    int difference;
  };
  const auto rows =
      std::to_array({Row(L"Foo\u0100B", L"fOO\u0101", L'b'), Row(L"a", L"ab", -L'b'),
                     Row(L"Z", L"[", L'z' - L'['), Row(L"\u00C9", L"\u00E9", -0x20),
                     Row(L"\u0416", L"A", 0x0436 - L'a'), Row(L"\u0130x", L"\u0130X", 0),
                     Row(L"\uFFFF", L"\uFFFE", 1), Row(L"[", L"{", L'[' - L'{')});
  for (const auto& [a, b, difference] : rows) {
    CAPTURE(a);
    CAPTURE(b);
    CHECK(CompareNoCase(a, b) == difference);
  }
  REQUIRE(std::setlocale(LC_CTYPE, "") != nullptr);
  const bool isEqual = CompareNoCase(L"\u00C9", L"\u00E9") == 0;
  const bool folds = std::towlower(0xC9) == 0xE9;
  std::setlocale(LC_CTYPE, "C");
  CHECK(isEqual == folds);
}
