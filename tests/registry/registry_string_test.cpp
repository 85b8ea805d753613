#include "lib/registry/registry_string.h"

#include "tests/support/testing.h"

using namespace std::string_literals;

static std::wstring Expanded(const wchar_t* text) {
  wchar_t buffer[1024];
  ExpandEnvironmentStringsW(text, buffer, 1024);
  return buffer;
}

TEST_CASE("RegistryReadString: returns the text up to its first NUL, or the default") {
  const ScratchKey key;
  const auto readBack = [&](const wchar_t* defaultText) {
    return RegistryReadString(HKEY_CURRENT_USER, key.c_str(), L"value", defaultText);
  };
  CHECK_BOTH(readBack(L"default") == L"default", readBack(nullptr).empty());
  const auto read = [&](DWORD type, const std::wstring& stored, std::size_t cutBytes = 0) {
    StoreUnits(HKEY_CURRENT_USER, key.c_str(), L"value", type, stored, cutBytes);
    return std::wstring(readBack(L"default").c_str());
  };
  CHECK(read(REG_SZ, L"\u017D\U0001F600;b\0"s) == L"\u017D\U0001F600;b");
  CHECK_BOTH(read(REG_SZ, L"\0"s) == L"", read(REG_SZ, L"") == L"");
  CHECK_BOTH(read(REG_SZ, L"abc") == L"abc", read(REG_SZ, L"abc", 1) == L"abc");
  CHECK(read(REG_SZ, L"ab\0cd\0"s) == L"ab");
  const std::wstring longest(1023, L'x');
  CHECK(read(REG_SZ, longest + L'\0') == longest);
  CHECK(read(REG_SZ, longest + L'y') == longest + L'y');
  CHECK(read(REG_SZ, longest + L"y\0"s) == L"default");
  CHECK(read(REG_SZ, L"%SystemRoot%\\x\0"s) == L"%SystemRoot%\\x");
  CHECK(read(REG_EXPAND_SZ, L"%SystemRoot%\\x\0"s) == Expanded(L"%SystemRoot%\\x"));
  const std::wstring longExpandable(259, L'x');
  CHECK(read(REG_EXPAND_SZ, longExpandable + L'\0') == longExpandable);
  for (const auto type : {DWORD{REG_DWORD}, DWORD{REG_BINARY}, DWORD{REG_MULTI_SZ}}) {
    CHECK(read(type, L"ab\0\0"s) == L"default");
  }
}

TEST_CASE("RegistryReadStringBuffer: terminates the text and never writes past the buffer") {
  const ScratchKey key;
  wchar_t old[] = L"old";
  CHECK(RegistryReadStringBuffer(HKEY_CURRENT_USER, key.c_str(), L"value", old, 4) == 0);
  CHECK(std::wstring(old) == L"");
  const auto read = [&](std::size_t length, DWORD type, const std::wstring& stored) {
    StoreUnits(HKEY_CURRENT_USER, key.c_str(), L"value", type, stored);
    std::wstring buffer(length + 1, L'!');
    const std::size_t count =
        RegistryReadStringBuffer(HKEY_CURRENT_USER, key.c_str(), L"value", buffer.data(), length);
    CHECK(std::exchange(buffer.back(), L'\0') == L'!');
    CHECK(count == std::wcslen(buffer.c_str()));
    return std::wstring(buffer.c_str());
  };
  CHECK_BOTH(read(4, REG_SZ, L"abc\0"s) == L"abc", read(4, REG_SZ, L"abcd\0"s) == L"");
  CHECK(read(4, REG_SZ, L"abcd") == L"abc");
  CHECK(read(6, REG_EXPAND_SZ, L"%OS%.\0"s) == Expanded(L"%OS%.").substr(0, 5));
  CHECK(read(4, REG_BINARY, L"ab\0"s) == L"");
  CHECK_BOTH(read(1, REG_SZ, L"\0"s) == L"", read(0, REG_SZ, L"a\0"s) == L"");
}

TEST_CASE("RegistryWriteString, RegistryWriteExpandString: store the terminating NUL") {
  const StandInKey user(HKEY_CURRENT_USER);
  for (const auto& [write, flag] : {std::pair(&RegistryWriteString, RRF_RT_REG_SZ),
                                    {&RegistryWriteExpandString, RRF_RT_REG_EXPAND_SZ}}) {
    CHECK(write(HKEY_CURRENT_USER, L"two\\missing", L"", L"a;b") == 0);
    DWORD size = 0;
    RegGetValueW(user.key.get(), L"two\\missing", L"", static_cast<DWORD>(flag) | RRF_NOEXPAND,
                 nullptr, nullptr, &size);
    CHECK(size == 8);
  }
}
