#include "lib/string/wstring.h"

#include "tests/support/testing.h"

TEST_CASE("WString: accepts null and parts of itself, rejects bad positions and lengths") {
  CHECK_BOTH(WString(nullptr).empty(), WString(L"brindle").AssignCString(nullptr).empty());
  for (const wchar_t* const original : {L"seven__", L"a text that does not fit into the object"}) {
    WString text(original);
    const auto offset =
        reinterpret_cast<const char*>(text.c_str()) - reinterpret_cast<const char*>(&text);
    CHECK((offset >= 0 && offset < std::ptrdiff_t{sizeof(text)}) == (*original == L's'));
    text.AssignCString(text.c_str() + 2);
    CHECK(text == WString(original + 2));
    text.assign(text, 1, 2);
    CHECK(text == WString(std::wstring_view(original).substr(3, 2)));
    CHECK_THROWS_WITH(text.erase(3), "invalid string position");
    CHECK_THROWS_WITH(static_cast<void>(text.substr(3)), "invalid string position");
    CHECK_THROWS_WITH(text.assign(text, 3), "invalid string position");
    CHECK_THROWS_WITH(text.resize(text.max_size() + 1), "string too long");
    CHECK_THROWS_WITH(text.append({L"", text.max_size()}), "string too long");
    CHECK(text.length() == 2);
  }
}
