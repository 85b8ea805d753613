#include "lib/registry/registry_string.h"

#include "tests/support/testing.h"

using namespace std::string_literals;

static std::wstring Expanded(const wchar_t* text) {
  wchar_t buffer[1024];
  ExpandEnvironmentStringsW(text, buffer, 1024);
  return buffer;
}

TEST_CASE("a text value is read whole or not at all") {
  const std::wstring longest(1023, L'x');
  struct Row {
    DWORD type;
    std::wstring stored;
    std::size_t cutBytes;
    std::wstring expected;
  };
  const auto rows = std::to_array(
      {Row(REG_SZ, L"\u017D\U0001F600;b\0"s, 0, L"\u017D\U0001F600;b"), Row(REG_SZ, L"\0"s, 0, L""),
       Row(REG_SZ, L"", 0, L""), Row(REG_SZ, longest + L'\0', 0, longest),
       Row(REG_SZ, longest + L'y', 0, longest + L'y'),
       Row(REG_SZ, longest + L"y\0"s, 0, L"default"), Row(REG_SZ, L"abc", 0, L"abc"),
       Row(REG_SZ, L"abc", 1, L"abc"), Row(REG_SZ, L"ab\0cd\0"s, 0, L"ab"),
       Row(REG_EXPAND_SZ, L"%SystemRoot%\\x\0"s, 0, Expanded(L"%SystemRoot%\\x")),
       Row(REG_SZ, L"%SystemRoot%\\x\0"s, 0, L"%SystemRoot%\\x"),
       Row(REG_EXPAND_SZ, longest.substr(764) + L'\0', 0, longest.substr(764)),
       Row(REG_DWORD, L"ab", 0, L"default"), Row(REG_BINARY, L"ab\0"s, 0, L"default"),
       Row(REG_MULTI_SZ, L"ab\0\0"s, 0, L"default")});
  const ScratchKey key;
  const auto read = [&](const wchar_t* defaultText) {
    return RegistryReadString(HKEY_CURRENT_USER, key.c_str(), L"value", defaultText);
  };
  CHECK_BOTH(read(L"default") == L"default", read(nullptr).empty());
  for (const auto& [type, stored, cutBytes, expected] : rows) {
    StoreUnits(HKEY_CURRENT_USER, key.c_str(), L"value", type, stored, cutBytes);
    CHECK(read(L"default").c_str() == expected);
  }
}

TEST_CASE("a caller's buffer is filled, ended and never left") {
  struct Row {
    DWORD type;
    std::wstring stored;
    std::size_t length;
    std::wstring expected;
  };
  const auto rows =
      std::to_array({Row(REG_SZ, L"abc\0"s, 4, L"abc"), Row(REG_SZ, L"abcd\0"s, 4, L""),
                     Row(REG_SZ, L"abcd", 4, L"abc"),
                     Row(REG_EXPAND_SZ, L"%OS%.\0"s, 6, Expanded(L"%OS%.").substr(0, 5)),
                     Row(REG_BINARY, L"ab\0"s, 4, L""), Row(REG_SZ, L"\0"s, 1, L""),
                     Row(REG_SZ, L"a\0"s, 0, L"")});
  const ScratchKey key;
  wchar_t old[] = L"old";
  CHECK(RegistryReadStringBuffer(HKEY_CURRENT_USER, key.c_str(), L"value", old, 4) == 0);
  CHECK(std::wstring(old) == L"");
  for (const auto& [type, stored, length, expected] : rows) {
    StoreUnits(HKEY_CURRENT_USER, key.c_str(), L"value", type, stored);
    CAPTURE(stored);
    CAPTURE(length);
    std::wstring buffer(length + 1, L'!');
    CHECK(RegistryReadStringBuffer(HKEY_CURRENT_USER, key.c_str(), L"value", buffer.data(),
                                   length) == expected.length());
    CHECK_BOTH(std::exchange(buffer.back(), L'\0') == L'!', buffer.c_str() == expected);
  }
}

TEST_CASE("a text is stored with its terminator") {
  const ScratchKey key;
  const std::wstring path = (key + L"\\two\\missing").c_str();
  for (const auto& [write, flag] : {std::pair(&RegistryWriteString, RRF_RT_REG_SZ),
                                    {&RegistryWriteExpandString, RRF_RT_REG_EXPAND_SZ}}) {
    CHECK(write(HKEY_CURRENT_USER, path.c_str(), L"", L"a;b") == 0);
    DWORD size = 0;
    RegGetValueW(HKEY_CURRENT_USER, path.c_str(), L"", static_cast<DWORD>(flag) | RRF_NOEXPAND,
                 nullptr, nullptr, &size);
    CHECK(size == 8);
  }
}
