#include "lib/string/text_routines.h"

#include "lib/string/format_text.h"
#include "lib/string/hex_text.h"
#include "tests/support/testing.h"

TEST_CASE("SubstringClamped clamps, FormatText formats, BytesToHex writes two digits per byte") {
  CHECK(FormatText(L"%s", L"x") == L"x");
  CHECK(SubstringClamped(L"kite", 1, 2) == L"it");
  CHECK(SubstringClamped(L"kite", 3, 9) == L"e");
  CHECK(SubstringClamped(L"kite", 4, 1) == L"");
  CHECK(SubstringClamped(nullptr, 0) == L"");
  CHECK(BytesToHex("\x00\x9F\xAb", 3) == L"009FAB");
  CHECK(BytesToHex(nullptr, 3) == L"");
}

TEST_CASE("ReplaceAll: accepts pointers into the text, throws if memory runs out") {
  WString text = L"a-b-ab";
  CHECK(ReplaceAll(text, text.c_str() + 4, text.c_str() + 2) == 1);
  CHECK(text == L"a-b-b-ab");
  CHECK(ReplaceAll(text, nullptr, L"x") == 0);
  CHECK(ReplaceAll(text, L"-b", nullptr) == 2);
  CHECK(text == L"a-ab");
  text = L"aaabaa";
  CHECK(ReplaceAll(text, L"aa", L"cc") == 2);
  CHECK(text == L"ccabcc");
  const WString many(2000, L'x');
  text = many;
  const std::wstring longer(2000, L'y');
  // Makes the allocation of the result fail.
  REPLACE(malloc, [](auto original, std::size_t size) {
    return size > 1'000'000 ? nullptr : original(size);
  });
  CHECK_THROWS_AS(ReplaceAll(text, L"x", longer.c_str()), std::bad_alloc);
  CHECK(text == many);
}
