#include "lib/string/text_routines.h"

#include <random>

#include "lib/string/hex_text.h"
#include "lib/ui/text_substitution.h"
#include "tests/support/testing.h"

TEST_CASE("a part of a text ends where the text does; bytes are two digits each") {
  CHECK(SubstringClamped(L"kite", 1, 2) == L"it");
  CHECK(SubstringClamped(L"kite", 3, 9) == L"e");
  CHECK(SubstringClamped(L"kite", 4, 1) == L"");
  CHECK(SubstringClamped(nullptr, 0) == L"");
  CHECK(BytesToHex("\x00\x9F\xAb", 3) == L"009FAB");
  CHECK(BytesToHex(nullptr, 3) == L"");
}

TEST_CASE("replacing takes arguments that lie in the text, and none that is too long") {
  WString text = L"a-b-ab";
  CHECK(ReplaceAll(text, text.c_str() + 4, text.c_str() + 2) == 1);
  CHECK(text == L"a-b-b-ab");
  CHECK(ReplaceAll(text, nullptr, L"x") == 0);
  CHECK(ReplaceAll(text, L"-b", nullptr) == 2);
  CHECK(text == L"a-ab");
  // No room for the result.
  const WString many(2000, L'x');
  text = many;
  const std::wstring longer(2000, L'y');
  REPLACE(malloc, [](auto original, std::size_t size) {
    return size > 1'000'000 ? nullptr : original(size);
  });
  CHECK_THROWS_AS(ReplaceAll(text, L"x", longer.c_str()), std::bad_alloc);
  CHECK(text == many);
}

TEST_CASE("routines, tokenizer and buffer agree with plain loops on random texts") {
  constexpr unsigned kSeed = 11;
  std::mt19937 random(kSeed);
  const auto randomText = [&](std::size_t most) {
    WString text(random() % (most + 1), L'a');
    std::generate_n(text.data(), text.length(), [&] { return L"aab"[random() % 3]; });
    return text;
  };
  for (int round = 0; round < 3000; ++round) {
    const WString text = randomText(14), search = randomText(3), replacement = randomText(4);
    const bool collapse = random() % 2 == 0;
    INFO(text, "|", search, "|", replacement, "|", collapse);
    std::size_t hits = 0, pieces = 0, end = 0;
    WString plain;
    for (std::size_t at = 0; at < text.length();) {
      const bool isHit = !search.empty() && text.substr(at, search.length()) == search;
      plain += isHit ? replacement : text.substr(at, 1);
      pieces += isHit && at > end ? 1 : 0;
      at += isHit ? search.length() : 1;
      end = isHit ? at : end;
      hits += isHit ? 1 : 0;
    }
    const std::size_t rest = end < text.length() ? 1 : 0;
    WString replaced = text;
    CHECK(ReplaceAll(replaced, search.c_str(), replacement.c_str()) == hits);
    CHECK(replaced == plain);
    wchar_t buffer[64];
    wcscpy(buffer, text.c_str());
    ReplaceAllInBuffer(buffer, 64, search.c_str(), replacement.c_str());
    CHECK(buffer == plain);
    // Where runs of longer delimiters collapse, overlapping ones can be read in other ways.
    if (!collapse || search.length() < 2) {
      CHECK(CountTokens(text, search, collapse) == (collapse ? pieces : hits) + rest);
    }
  }
}
