#include "lib/string/string_tokenizer.h"

#include <string>
#include <tuple>
#include <vector>

#include "tests/support/catch.h"

namespace kelvo {

namespace {

std::vector<std::wstring> Split(const WString& text, const WString& delimiter, bool collapse) {
  std::vector<std::wstring> items;
  StringTokenizer tokens(text, delimiter, collapse);
  while (tokens.HasMoreTokens()) {
    items.emplace_back(std::wstring_view(tokens.NextToken()));
  }
  CHECK(tokens.NextToken().empty());
  CHECK_FALSE(tokens.HasMoreTokens());
  return items;
}

}  // namespace

TEST_CASE("a text is split at the whole delimiter") {
  using Items = std::vector<std::wstring>;
  const std::tuple<const wchar_t*, const wchar_t*, bool, Items> rows[] = {
      {L";a;;b;", L";", true, {L"a", L"b"}},
      {L";a;;b;", L";", false, {L"", L"a", L"", L"b"}},
      {L"", L";", true, {}},
      {L"", L";", false, {}},
      {L";", L";", true, {}},
      {L";;", L";", true, {}},
      {L";;;", L";", false, {L"", L"", L""}},
      {L"abc", L";", true, {L"abc"}},
      {L"abc", L";", false, {L"abc"}},
      {L"a::b:c", L"::", false, {L"a", L"b:c"}},
      {L"::::a::::b:::", L"::", true, {L"a", L"b:"}},
      {L"aaaaa", L"aa", true, {L"a"}},
      {L"a;b", L"a;b;c", true, {L"a;b"}}};
  for (const auto& [text, delimiter, collapse, items] : rows) {
    CAPTURE(text, delimiter, collapse);
    CHECK(Split(text, delimiter, collapse) == items);
  }
}

// With a cost that grows with the square of the length this takes minutes.
TEST_CASE("long lists and long runs of delimiters are walked to their end") {
  std::wstring list;
  for (int i = 0; i < 100'000; ++i) {
    list += L"item;";
  }
  CHECK(Split(WString(list), L";", true).size() == 100'000);
  CHECK(Split(WString(list), L";", false).size() == 100'000);
  CHECK(Split(WString(1'000'000, L';'), L";", true).empty());
  CHECK(Split(WString(1'000'000, L';'), L";", false).size() == 1'000'000);
}

}  // namespace kelvo
