#include "lib/string/string_tokenizer.h"

#include "tests/support/testing.h"

TEST_CASE("a text is split at the whole delimiter, in time that grows with its length") {
  std::wstring list, listed;
  for (int i = 0; i < 100'000; ++i) {
    list += L"item;";
    listed += L"item|";
  }
  const std::wstring run(1'000'000, L';');
  struct Row {
    std::wstring text;
    const wchar_t* delimiter;
    bool collapse;
    std::wstring items;  // each ended by "|"
  };
  const auto rows = std::to_array(
      {Row(L";a;;b;", L";", true, L"a|b|"), Row(L";a;;b;", L";", false, L"|a||b|"),
       Row(L"", L";", true, L""), Row(L"", L";", false, L""), Row(L";", L";", true, L""),
       Row(L";;;", L";", false, L"|||"), Row(L"abc", L";", false, L"abc|"),
       Row(L"a::b:c", L"::", false, L"a|b:c|"), Row(L"::::a::::::b:::", L"::", true, L"a|b:|"),
       Row(L"aaaaa", L"aa", true, L"a|"), Row(L"a;b", L"a;b;c", true, L"a;b|"),
       Row(run, L";", true, L""), Row(run, L";", false, std::wstring(1'000'000, L'|')),
       Row(list, L";", true, listed)});
  for (const auto& [text, delimiter, collapse, expected] : rows) {
    CAPTURE(text.substr(0, 20));
    CAPTURE(delimiter);
    CAPTURE(collapse);
    std::wstring items;
    StringTokenizer tokens(WString{text}, delimiter, collapse);
    while (tokens.HasMoreTokens()) {
      items += tokens.NextToken().c_str() + std::wstring(L"|");
    }
    CHECK_BOTH(items == expected, tokens.NextToken().empty());
    CHECK(!tokens.HasMoreTokens());
  }
}
