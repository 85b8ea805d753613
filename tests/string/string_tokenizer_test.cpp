#include "lib/string/string_tokenizer.h"

#include "lib/string/text_routines.h"
#include "tests/support/testing.h"

// Returns all tokens, each followed by "|".
static std::wstring Split(const std::wstring& text, const wchar_t* delimiter, bool collapse) {
  std::wstring items;
  std::size_t count = 0;
  StringTokenizer tokens(WString{text}, delimiter, collapse);
  for (; tokens.HasMoreTokens(); ++count) {
    items += tokens.NextToken().c_str() + std::wstring(L"|");
  }
  CHECK_BOTH(tokens.NextToken().empty(), !tokens.HasMoreTokens());
  CHECK(CountTokens(text.c_str(), delimiter, collapse) == count);
  return items;
}

TEST_CASE("StringTokenizer: splits at the whole delimiter, in linear time") {
  CHECK(Split(L";a;;b;", L";", true) == L"a|b|");
  CHECK(Split(L";a;;b;", L";", false) == L"|a||b|");
  CHECK_BOTH(Split(L"", L";", true) == L"", Split(L"", L";", false) == L"");
  CHECK_BOTH(Split(L";", L";", true) == L"", Split(L";;;", L";", false) == L"|||");
  CHECK(Split(L"abc", L";", false) == L"abc|");
  CHECK(Split(L"a::b:c", L"::", false) == L"a|b:c|");
  CHECK(Split(L"::::a::::::b:::", L"::", true) == L"a|b:|");
  CHECK(Split(L"aaaaa", L"aa", true) == L"a|");
  CHECK(Split(L"a;b", L"a;b;c", true) == L"a;b|");
  const std::wstring run(1'000'000, L';');
  CHECK(Split(run, L";", true) == L"");
  CHECK(Split(run, L";", false) == std::wstring(1'000'000, L'|'));
  // Only CountTokens accepts an empty delimiter. Splitting would never end.
  CHECK_BOTH(CountTokens(L"a;b", L"", true) == 1, CountTokens(L"", L"", true) == 0);
}
