#include "lib/string/wstring.h"

#include "tests/support/catch.h"

namespace kelvo {

TEST_CASE("a null pointer makes a text empty") {
  CHECK(WString(nullptr).empty());
  WString text(L"brindle");
  CHECK(text.AssignCString(nullptr).empty());
  CHECK(*text.c_str() == L'\0');
}

TEST_CASE("a text takes over a part of itself") {
  for (const wchar_t* const original : {L"short", L"a text that does not fit into the object"}) {
    WString text(original);
    text.AssignCString(text.c_str() + 2);
    CHECK(text == WString(original + 2));
    text.assign(text, 1, 2);
    CHECK(text == WString(std::wstring_view(original).substr(3, 2)));
  }
}

TEST_CASE("up to seven units live inside the object") {
  const auto isInside = [](const WString& text) {
    const auto offset =
        reinterpret_cast<const char*>(text.c_str()) - reinterpret_cast<const char*>(&text);
    return offset >= 0 && offset < std::ptrdiff_t{sizeof(text)};
  };
  CHECK(isInside(L"seven__"));
  CHECK_FALSE(isInside(L"eight___"));
}

TEST_CASE("failures have the same texts with every standard library") {
  WString text(L"abc");
  CHECK_THROWS_WITH(text.erase(4), "invalid string position");
  CHECK_THROWS_WITH(text.substr(4), "invalid string position");
  CHECK_THROWS_WITH(text.assign(WString(L"abc"), 4), "invalid string position");
  CHECK_THROWS_WITH(text.resize(text.max_size() + 1), "string too long");
  CHECK_THROWS_WITH(text.append({L"", text.max_size()}), "string too long");
  CHECK(text == WString(L"abc"));
}

}  // namespace kelvo
