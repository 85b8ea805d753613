#include "lib/sysinfo/file_version.h"

#include <shlwapi.h>

#include "lib/sysinfo/common_controls_version.h"
#include "lib/sysinfo/file_version_text.h"
#include "lib/sysinfo/internet_explorer_version.h"
#include "tests/support/testing.h"

TEST_CASE("a file's version is compared, and its memory kept when it is not lower") {
  const std::wstring file = ProgramPath(L"versioned_english.dll");
  int freed = 0;
  REPLACE(GlobalUnlock, [&](auto...) { return ++freed; });
  REPLACE(GlobalFree, [&](auto...) { return ++freed, nullptr; });
  const int rows[][6] = {{1, 2, 3, 65535, 0, 0}, {1, 2, 3, 65536, -1, 2}, {1, 2, 3, 65534, 1, 0},
                         {1, 2, 4, 0, -1, 2},    {1, 2, 2, 65536, 1, 0},  {1, 3, 0, 0, -1, 2},
                         {1, 1, 9, 9, 1, 0},     {2, 0, 0, 0, -1, 2},     {0, 9, 9, 9, 1, 0}};
  for (const auto& [major, minor, build, revision, answer, released] : rows) {
    CHECK(CompareFileVersion(file.c_str(), major, minor, build, revision) == answer);
    CHECK(std::exchange(freed, 0) == released);
  }
  REPLACE(VerQueryValueW, [](auto...) { return FALSE; });
  CHECK((CompareFileVersion(file.c_str(), 0, 0, 0, 0) == 2 && freed == 2));
}

TEST_CASE("a file's version is written as numbers and as its own text") {
  const WString rows[][3] = {{L"versioned_english.dll", L"1.2.3.65535", L"1.2 \u017E"},
                             {L"versioned_german.dll", L"1.2.3.65535", L"eins"},
                             {L"versioned_without_text.dll", L"1.2.3.65535", L""},
                             {L"no such file", L"not available", L""}};
  for (const auto& [file, numbers, text] : rows) {
    const std::wstring path = ProgramPath(file.c_str());
    wchar_t written[32];
    CHECK(GetFileVersionString(written, path.c_str()) == (numbers.c_str()[0] == L'1'));
    CHECK((written == numbers && GetFileVersionText(path.c_str()) == text));
  }
  // A text that claims more than its file holds ends with the file.
  REPLACE(VerQueryValueW, [](auto original, auto block, auto* path, void** found, auto length) {
    const BOOL answer = original(block, path, found, length);
    *length = *path == L'\\' && path[1] == L'S' ? 60000 : *length;
    return answer;
  });
  CHECK(GetFileVersionText(ProgramPath(L"versioned_german.dll").c_str()) == L"eins");
}

TEST_CASE("the browser's file is looked for in the system directory, its name kept") {
  wchar_t text[32];
  int version[4];
  CHECK(GetSystemFileVersionString(text, L"Shdocvw.dll"));
  REQUIRE(swscanf(text, L"%d.%d.%d.%d", &version[0], &version[1], &version[2], &version[3]) == 4);
  CHECK(IsIEVersionAtLeast(nullptr, version));
  CHECK_FALSE(IsIEVersionAtLeast(nullptr, (++version[3], version)));
  CHECK((GetSystemFileVersionString(text, L"no such file") && text == WString(L"not available")));
  const std::wstring sp1 = L"Internet Explorer 5.01 SP1 (Windows 95/98 and  Windows NT 4.0) ";
  CHECK(GetIEVersionName(nullptr, {5, 50, 4134, 601}) == std::wstring());
  CHECK(GetIEVersionName(nullptr, {5, 50, 4134, 600}) == std::wstring(L"Internet Explorer 5.5"));
  CHECK(GetIEVersionName(nullptr, {5, 0, 3105, 106}) == sp1);
  CHECK(GetIEVersionName(nullptr, {6, 0, 0, 0}) == sp1);
}

TEST_CASE("the common controls tell their version, or are 4.0 when they cannot") {
  const auto tell = +[](DLLVERSIONINFO* version) -> HRESULT {
    version->dwMajorVersion = version->cbSize == 20 ? 6 : 0;
    version->dwMinorVersion = 0x1000A;
    return S_FALSE;
  };
  const auto fail = +[](DLLVERSIONINFO*) -> HRESULT { return E_ABORT; };
  const std::tuple<decltype(fail), HRESULT, DWORD, DWORD, DWORD> rows[] = {
      {tell, S_FALSE, 6, 0x1000A, 0x6000A},
      {fail, E_FAIL, 77, 77, 0},
      {nullptr, S_OK, 4, 0, 0x40000}};
  DWORD numbers[2];
  for (const auto& [function, result, major, minor, packed] : rows) {
    const ReplacedExport version("DllGetVersion", function);
    numbers[0] = numbers[1] = 77;
    CHECK(GetComCtlVersion(&numbers[0], &numbers[1]) == result);
    CHECK((numbers[0] == major && numbers[1] == minor && GetComCtlVersionPacked() == packed));
  }
  CHECK(GetComCtlVersion(nullptr, numbers) == E_INVALIDARG);
  CHECK(GetComCtlVersion(numbers, nullptr) == E_INVALIDARG);
  REPLACE(LoadLibraryW, [](auto...) { return nullptr; });
  CHECK(GetComCtlVersionPacked() == 0);
}
