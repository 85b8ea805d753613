#include "lib/registry/registry_string.h"

#include <array>
#include <string>
#include <tuple>
#include <vector>

#include "lib/registry/registry_value.h"
#include "tests/support/catch.h"
#include "tests/support/scratch_key.h"

namespace kelvo {

namespace {

constexpr const wchar_t* kName = L"value";
constexpr const wchar_t* kDefault = L"default";

void Store(const test::ScratchKey& key, DWORD type, std::wstring units, std::size_t cutBytes = 0) {
  // Windows stores a terminator that stands right behind the data, too.
  units += L'#';
  cutBytes += sizeof(wchar_t);
  REQUIRE(WriteRegistryValue(HKEY_CURRENT_USER, key.Path(), kName, type, units.data(),
                             static_cast<DWORD>(units.size() * sizeof(wchar_t) - cutBytes)) == 0);
}

std::wstring Read(const test::ScratchKey& key) {
  return std::wstring(
      std::wstring_view(RegistryReadString(HKEY_CURRENT_USER, key.Path(), kName, kDefault)));
}

std::wstring Expanded(const wchar_t* text) {
  std::array<wchar_t, 1024> buffer{};
  ExpandEnvironmentStringsW(text, buffer.data(), static_cast<DWORD>(buffer.size()));
  return buffer.data();
}

}  // namespace

TEST_CASE("a text value is read whole or not at all") {
  const std::wstring longest(1023, L'x');
  using namespace std::string_literals;
  const std::tuple<const char*, DWORD, std::wstring, std::size_t, std::wstring> rows[] = {
      {"plain", REG_SZ, L"a;b\0"s, 0, L"a;b"},
      {"outside ASCII", REG_SZ, L"\u017D\U0001F600\0"s, 0, L"\u017D\U0001F600"},
      {"empty", REG_SZ, L"\0"s, 0, L""},
      {"no data", REG_SZ, L"", 0, L""},
      {"2,048 bytes", REG_SZ, longest + L'\0', 0, longest},
      {"2,048 bytes without terminator", REG_SZ, longest + L'y', 0, longest + L'y'},
      {"2,050 bytes", REG_SZ, longest + L"y\0"s, 0, kDefault},
      {"no terminator", REG_SZ, L"abc", 0, L"abc"},
      {"odd length", REG_SZ, L"abc", 1, L"abc"},
      {"a NUL inside", REG_SZ, L"ab\0cd\0"s, 0, L"ab"},
      {"expanded", REG_EXPAND_SZ, L"%SystemRoot%\\x\0"s, 0, Expanded(L"%SystemRoot%\\x")},
      {"not expanded", REG_SZ, L"%SystemRoot%\\x\0"s, 0, L"%SystemRoot%\\x"},
      {"unknown variable", REG_EXPAND_SZ, L"%no such thing%\0"s, 0, L"%no such thing%"},
      {"a number", REG_DWORD, L"ab", 0, kDefault},
      {"bytes", REG_BINARY, L"ab\0"s, 0, kDefault},
      {"several texts", REG_MULTI_SZ, L"ab\0\0"s, 0, kDefault},
  };
  for (const auto& [what, type, stored, cutBytes, read] : rows) {
    const test::ScratchKey key;
    Store(key, type, stored, cutBytes);
    INFO(what);
    CHECK(Read(key) == read);
  }
}

TEST_CASE("what is not there gives the default") {
  const test::ScratchKey key;
  CHECK(Read(key) == kDefault);
  CHECK(RegistryReadString(HKEY_CURRENT_USER, key.Path(), kName, nullptr).empty());
  Store(key, REG_SZ, L"x");
  CHECK(RegistryReadString(HKEY_CURRENT_USER, key.Path(), L"other", L"d") == WString(L"d"));
}

TEST_CASE("a caller's buffer is filled, ended and never left") {
  constexpr wchar_t kGuard = 0x5A5A;
  using namespace std::string_literals;
  const std::tuple<DWORD, std::wstring, std::size_t, std::wstring> rows[] = {
      {REG_SZ, L"abc\0"s, 4, L"abc"},
      {REG_SZ, L"abcd\0"s, 4, L""},
      {REG_SZ, L"abcd", 4, L"abc"},
      {REG_EXPAND_SZ, L"%SystemRoot%\0"s, 13, Expanded(L"%SystemRoot%").substr(0, 12)},
      {REG_EXPAND_SZ, L"%OS%.\0"s, 6, Expanded(L"%OS%.").substr(0, 5)},
      {REG_BINARY, L"ab\0"s, 4, L""},
      {REG_SZ, L"\0"s, 1, L""},
      {REG_SZ, L"a\0"s, 0, L""},
  };
  for (const auto& [type, stored, length, read] : rows) {
    const test::ScratchKey key;
    Store(key, type, stored);
    CAPTURE(stored, length);
    std::vector<wchar_t> buffer(length + 1, kGuard);
    CHECK(RegistryReadStringBuffer(HKEY_CURRENT_USER, key.Path(), kName, buffer.data(), length) ==
          read.length());
    CHECK(buffer.back() == kGuard);
    buffer.back() = L'\0';
    CHECK(std::wstring(buffer.data()) == read);
  }
}

TEST_CASE("a text is stored with its terminator") {
  const test::ScratchKey key;
  const WString path = WString(key.Path()) + L"\\two\\missing";
  CHECK(RegistryWriteString(HKEY_CURRENT_USER, path.c_str(), kName, L"a;b") == 0);
  CHECK(RegistryWriteExpandString(HKEY_CURRENT_USER, path.c_str(), L"", L"%x%") == 0);
  DWORD type = 0;
  DWORD size = 0;
  RegGetValueW(HKEY_CURRENT_USER, path.c_str(), kName, RRF_RT_ANY, &type, nullptr, &size);
  CHECK((type == REG_SZ && size == 8));
  RegGetValueW(HKEY_CURRENT_USER, path.c_str(), L"", RRF_RT_ANY | RRF_NOEXPAND, &type, nullptr,
               &size);
  CHECK(type == REG_EXPAND_SZ);
}

}  // namespace kelvo
