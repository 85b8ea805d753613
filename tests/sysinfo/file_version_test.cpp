#include "lib/sysinfo/file_version.h"

#include <windows.h>

#include <shlwapi.h>

#include "lib/sysinfo/common_controls_version.h"
#include "lib/sysinfo/file_version_text.h"
#include "lib/sysinfo/internet_explorer_version.h"
#include "tests/support/catch.h"
#include "tests/support/child_process.h"
#include "tests/support/replaced_import.h"

namespace kelvo {

namespace {

HRESULT WINAPI TellVersion(DLLVERSIONINFO* version) {
  version->dwMajorVersion = version->cbSize == 20 ? 6 : 0;
  version->dwMinorVersion = 0x1000A;
  return S_FALSE;
}
HRESULT WINAPI FailVersion(DLLVERSIONINFO* /*version*/) { return E_ABORT; }

}  // namespace

TEST_CASE("a file's version is compared, and its memory kept when it is not lower") {
  const std::wstring file = test::ProgramPath(L"versioned_english.exe");
  int freed = 0;
  const auto unlock = KELVO_REPLACE_IMPORT(GlobalUnlock, [&](auto...) { return ++freed; });
  const auto release = KELVO_REPLACE_IMPORT(GlobalFree, [&](auto...) { return ++freed, nullptr; });
  const int rows[][6] = {
      {1, 2, 3, 65535, 0, 0}, {1, 2, 3, 65536, -1, 2}, {1, 2, 3, 65534, 1, 0},
      {1, 2, 4, 0, -1, 2},    {1, 2, 2, 65536, 1, 0},  {1, 3, 0, 0, -1, 2},
      {1, 1, 9, 9, 1, 0},     {2, 0, 0, 0, -1, 2},     {0, 9, 9, 9, 1, 0},
  };
  for (const auto& [major, minor, build, revision, answer, released] : rows) {
    freed = 0;
    CHECK(CompareFileVersion(file.c_str(), major, minor, build, revision) == answer);
    CHECK(freed == released);
  }
  freed = 0;
  const auto noBlock = KELVO_REPLACE_IMPORT(VerQueryValueW, [](auto...) { return FALSE; });
  CHECK(CompareFileVersion(file.c_str(), 0, 0, 0, 0) == 2);
  CHECK(freed == 2);
}

TEST_CASE("a file's version is written as numbers and as its own text") {
  const WString rows[][3] = {{L"versioned_english.exe", L"1.2.3.65535", L"1.2 \u017E"},
                             {L"versioned_german.exe", L"1.2.3.65535", L"eins"},
                             {L"versioned_without_text.exe", L"1.2.3.65535", L""},
                             {L"system_report.exe", L"not available", L""},
                             {L"no such file", L"not available", L""}};
  for (const auto& [file, numbers, text] : rows) {
    const std::wstring path = test::ProgramPath(file.c_str());
    wchar_t written[32];
    CHECK(GetFileVersionString(written, path.c_str()) == (numbers.c_str()[0] == L'1'));
    CHECK(written == numbers);
    CHECK(GetFileVersionText(path.c_str()) == text);
  }
}

TEST_CASE("a version text that claims more than its file holds ends with the file") {
  const auto size = KELVO_REPLACE_IMPORT(GetFileVersionInfoSizeW, [](auto...) { return 9UL; });
  const auto read = KELVO_REPLACE_IMPORT(
      GetFileVersionInfoW,
      [](auto, auto, auto, auto, void* data) { return memset(data, 1, 9) != nullptr; });
  const auto query = KELVO_REPLACE_IMPORT(
      VerQueryValueW, [](auto, const void* data, const wchar_t*, void** found, UINT* length) {
        *found = const_cast<void*>(data);
        *length = 1000;
        return TRUE;
      });
  CHECK(GetFileVersionText(L"") == WString(4, L'\x0101'));
}

TEST_CASE("the browser's file is looked for in the system directory") {
  wchar_t text[32];
  int version[4];
  CHECK(GetSystemFileVersionString(text, L"Shdocvw.dll"));
  REQUIRE(swscanf(text, L"%d.%d.%d.%d", &version[0], &version[1], &version[2], &version[3]) == 4);
  CHECK(IsIEVersionAtLeast(nullptr, version));
  ++version[3];
  CHECK_FALSE(IsIEVersionAtLeast(nullptr, version));
  CHECK(GetSystemFileVersionString(text, L"no such file"));
  CHECK(text == WString(L"not available"));
}

TEST_CASE("the browser's name stays until another version has one") {
  const std::wstring sp1 = L"Internet Explorer 5.01 SP1 (Windows 95/98 and  Windows NT 4.0) ";
  CHECK(GetIEVersionName(nullptr, {5, 50, 4134, 601}) == std::wstring());
  CHECK(GetIEVersionName(nullptr, {5, 50, 4134, 600}) == std::wstring(L"Internet Explorer 5.5"));
  CHECK(GetIEVersionName(nullptr, {5, 0, 3105, 106}) == sp1);
  CHECK(GetIEVersionName(nullptr, {6, 0, 0, 0}) == sp1);
}

TEST_CASE("the common controls tell their version, or are 4.0 when they cannot") {
  struct Row {
    decltype(&TellVersion) function;
    HRESULT result;
    DWORD major, minor, packed;
  };
  for (const Row& row : {Row{TellVersion, S_FALSE, 6, 0x1000A, 0x6000A},
                         Row{FailVersion, E_FAIL, 77, 77, 0}, Row{nullptr, S_OK, 4, 0, 0x40000}}) {
    const test::ReplacedExport version("DllGetVersion", reinterpret_cast<void*>(row.function));
    DWORD numbers[] = {77, 77};
    CHECK(GetComCtlVersion(&numbers[0], &numbers[1]) == row.result);
    CHECK(std::pair(numbers[0], numbers[1]) == std::pair(row.major, row.minor));
    CHECK(GetComCtlVersionPacked() == row.packed);
  }
  DWORD number = 0;
  CHECK(GetComCtlVersion(nullptr, &number) == E_INVALIDARG);
  CHECK(GetComCtlVersion(&number, nullptr) == E_INVALIDARG);
  const auto missing = KELVO_REPLACE_IMPORT(LoadLibraryW, [](auto...) { return nullptr; });
  CHECK(GetComCtlVersionPacked() == 0);
}

}  // namespace kelvo
