#include "lib/registry/registry_value_list.h"

#include "tests/support/testing.h"

TEST_CASE("ReadRegistryKeyValues: lists names and strings") {
  using namespace std::string_literals;
  const std::wstring all(16383, L'x');
  const std::wstring hidden = L"<not listed>";
  // A REG_DWORD's bytes are listed as UTF-16. Without a NUL, data of earlier values follows them.
  const std::tuple<DWORD, std::size_t, std::wstring, std::wstring> rows[] = {
      {REG_DWORD, 0, L"\x01\0"s, L"\x01"},
      {REG_SZ, 0, L"abcdefg\0"s, L"abcdefg"},
      {REG_DWORD, 0, L"12", L"12cdefg"},
      {REG_DWORD, 0, L"", L""},
      {REG_SZ, 0, L"67", L"67"},
      {REG_SZ, 1, L"\u0436\u0436", L"\u0436\x36"},
      {REG_SZ, 0, L"a\0b\0"s, L"a"},
      {REG_BINARY, 0, L"bytes\0"s, hidden},
      {REG_EXPAND_SZ, 0, L"%kelvo%%kelvo%123", std::wstring(256, L'k') + L"123"},
      {REG_EXPAND_SZ, 0, L"%kelvo%%kelvo%1234",
       L"%kelvo%%kelvo%1234"},  // expands to 260 units and a NUL: too long
      {REG_SZ, 0, all + L'\0', hidden},
      {REG_SZ, 0, all, all},
      {REG_DWORD, 0, L"yz", L"yz" + all.substr(2)}};
  const ScratchKey key;
  CHECK(ReadRegistryKeyValues(HKEY_CURRENT_USER, key.c_str()).empty());
  NameTextList expected;
  WString name = L"\u017E@";
  for (const auto& [type, cutBytes, stored, listed] : rows) {
    ++name.data()[1];
    StoreUnits(HKEY_CURRENT_USER, key.c_str(), name.c_str(), type, stored, cutBytes);
    if (listed != hidden) {
      expected.emplace_back(name, WString(listed));
    }
  }
  SetEnvironmentVariableW(L"kelvo", std::wstring(128, L'k').c_str());
  CHECK(ReadRegistryKeyValues(HKEY_CURRENT_USER, key.c_str()) == expected);
  SetEnvironmentVariableW(L"kelvo", nullptr);
}
