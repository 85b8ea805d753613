#include "lib/registry/registry_value_list.h"

#include <string>

#include "lib/registry/registry_value.h"
#include "tests/support/catch.h"
#include "tests/support/scratch_key.h"

namespace kelvo {

TEST_CASE("the values of a key are listed by name and text") {
  using namespace std::string_literals;
  struct Row {
    DWORD type, cutBytes;
    std::wstring stored, listed;
  };
  const std::wstring all(16383, L'x');
  const std::wstring hidden = L"<not listed>";
  const Row rows[] = {
      {REG_DWORD, 0, L"\x01\0"s, L"\x01"},  // as text, not as digits
      {REG_DWORD, 0, L"\0\0"s, L""},
      {REG_SZ, 0, L"abcdefg\0"s, L"abcdefg"},
      {REG_DWORD, 0, L"12", L"12cdefg"},  // runs on into the text before it
      {REG_DWORD, 0, L"45", L"45cdefg"},
      {REG_DWORD, 0, L"", L""},
      {REG_SZ, 0, L"67", L"67"},  // a text without terminator does not
      {REG_SZ, 1, L"\u0436\u0436", L"\u0436\x36"},
      {REG_SZ, 0, L"a\0b\0"s, L"a"},
      {REG_SZ, 0, L"", L""},
      {REG_BINARY, 0, L"bytes\0"s, hidden},
      {REG_EXPAND_SZ, 0, L"%kelvo%%kelvo%\0"s, std::wstring(256, L'k')},
      {REG_EXPAND_SZ, 0, L"%kelvo%%kelvo%123", std::wstring(256, L'k') + L"123"},
      {REG_EXPAND_SZ, 0, L"%kelvo%%kelvo%1234", L"%kelvo%%kelvo%1234"},  // 260 and a NUL
      {REG_SZ, 0, all + L'\0', hidden},
      {REG_SZ, 0, all, all},
      {REG_DWORD, 0, L"yz", L"yz" + all.substr(2)},
  };
  const test::ScratchKey key;
  CHECK(ReadRegistryKeyValues(HKEY_CURRENT_USER, key.Path()).empty());
  NameTextList expected;
  WString name = L"\u017E0";  // outside ASCII
  for (const Row& row : rows) {
    name.data()[1] = static_cast<wchar_t>(L'A' + (&row - &rows[0]));
    // Windows stores a terminator that stands right behind the data, too.
    const std::wstring data = row.stored + L'#';
    const auto size = static_cast<DWORD>(row.stored.size() * sizeof(wchar_t));
    REQUIRE(WriteRegistryValue(HKEY_CURRENT_USER, key.Path(), name.c_str(), row.type, data.data(),
                               size - row.cutBytes) == 0);
    if (row.listed != hidden) {
      expected.emplace_back(name, WString(row.listed));
    }
  }
  SetEnvironmentVariableW(L"kelvo", std::wstring(128, L'k').c_str());
  CHECK(ReadRegistryKeyValues(HKEY_CURRENT_USER, key.Path()) == expected);
  SetEnvironmentVariableW(L"kelvo", nullptr);
}

}  // namespace kelvo
