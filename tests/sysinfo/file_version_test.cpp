#include "lib/sysinfo/file_version.h"

#include <shlwapi.h>

#include <cstring>

#include "lib/platform/module.h"
#include "lib/sysinfo/common_controls_version.h"
#include "lib/sysinfo/file_version_text.h"
#include "lib/sysinfo/internet_explorer_version.h"
#include "tests/support/testing.h"

TEST_CASE("a file's version is compared, and its memory kept when it is not lower") {
  const std::wstring file = ProgramPath(L"versioned_english.dll");
  int freed = 0;
  REPLACE(GlobalUnlock, [&](auto...) { return ++freed; });
  REPLACE(GlobalFree, [&](auto...) { return ++freed, nullptr; });
  struct Row {
    int major, minor, build, revision, order, released;
  };
  const Row rows[] = {{1, 2, 3, 65535, 0, 0}, {1, 2, 3, 65536, -1, 2}, {1, 2, 3, 65534, 1, 0},
                      {1, 2, 4, 0, -1, 2},    {1, 2, 2, 65536, 1, 0},  {1, 3, 0, 0, -1, 2},
                      {1, 1, 9, 9, 1, 0},     {2, 0, 0, 0, -1, 2},     {0, 9, 9, 9, 1, 0}};
  for (const auto& [major, minor, build, revision, order, released] : rows) {
    CHECK(CompareFileVersion(file.c_str(), major, minor, build, revision) == order);
    CHECK(std::exchange(freed, 0) == released);
    CHECK(CompareFileVersionNumbers(file.c_str(), major, minor, build, revision) == order);
    CHECK(std::exchange(freed, 0) == released);
  }
  REPLACE(VerQueryValueW, [](auto...) { return FALSE; });
  CHECK(CompareFileVersion(file.c_str(), 0, 0, 0, 0) == 2);
  CHECK(freed == 2);
}

TEST_CASE("a file's version is written as numbers and as its own text") {
  struct Row {
    WString file, numbers, text;
  };
  const Row rows[] = {{L"versioned_english.dll", L"1.2.3.65535", L"1.2 \u017E"},
                      {L"versioned_german.dll", L"1.2.3.65535", L"eins"},
                      {L"versioned_without_text.dll", L"1.2.3.65535", L""},
                      {L"no such file", L"not available", L""}};
  for (const auto& [file, numbers, text] : rows) {
    const std::wstring path = ProgramPath(file.c_str());
    wchar_t written[kFileVersionStringCapacity];
    CHECK(GetFileVersionString(written, path.c_str()) == (numbers.c_str()[0] == L'1'));
    CHECK(written == numbers);
    CHECK(GetFileVersionText(path.c_str()) == text);
  }
}

TEST_CASE("a resource shorter than its contents has no version, and none of foreign memory") {
  const std::wstring sound = ProgramPath(L"versioned_english.dll");
  const OwnedModule module(LoadLibraryExW(sound.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE));
  // Where the resource lies, its size, a code page and nothing.
  const auto* const entry = reinterpret_cast<const char*>(
      FindResourceW(module.get(), MAKEINTRESOURCEW(VS_VERSION_INFO), RT_VERSION));
  std::string bytes = ReadBytes(sound);
  const std::size_t sizePlace = bytes.find(std::string(entry, 16)) + 4;
  REPLACE(GlobalLock, [](auto original, auto memory) {
    return std::memset(original(memory), 0x11, GlobalSize(memory));
  });
  const ScratchFolder folder;
  // 8 and 44 bytes; of 44 Windows makes a buffer that the whole block fits into.
  for (const char size : {'\b', ','}) {
    bytes.replace(sizePlace, 4, {size, 0, 0, 0});
    const std::wstring hostile = folder.Write("hostile.dll", bytes);
    wchar_t numbers[kFileVersionStringCapacity];
    CHECK(GetFileVersionString(numbers, hostile.c_str()) == (size == ','));
    CHECK(numbers == (size == ',' ? L"0.0.0.0" : std::wstring(L"not available")));
    CHECK(GetFileVersionText(hostile.c_str()).empty());
  }
}

TEST_CASE("a value that does not lie inside its resource is none, or ends with it") {
  const std::wstring file = ProgramPath(L"versioned_german.dll");
  DWORD ignored = 0;
  const auto size = static_cast<std::ptrdiff_t>(GetFileVersionInfoSizeW(file.c_str(), &ignored));
  struct Row {
    // Of the path of the value that is replaced.
    std::size_t pathLength;
    std::ptrdiff_t place;
    UINT length;
    int order;
    WString text;
  };
  constexpr std::ptrdiff_t kSound = -1;
  constexpr std::size_t kBlock = 1, kTranslation = 24, kText = 36;
  const Row rows[] = {{kBlock, size - 52, 52, -1, L"eins"}, {kBlock, kSound, 51, 2, L"eins"},
                      {kBlock, size - 51, 52, 2, L"eins"},  {kBlock, -4, 52, 2, L"eins"},
                      {kTranslation, kSound, 3, 0, L""},    {kTranslation, size - 3, 4, 0, L""},
                      {kText, size - 4, 60000, 0, L"!!"},   {kText, size - 2, 0xFFFFFFFF, 0, L"!"},
                      {kText, size - 4, 1, 0, L"!"},        {kText, size, 1, 0, L""},
                      {kText, size + 2, 4, 0, L""},         {kText, -2, 4, 0, L""}};
  for (const auto& [pathLength, place, length, order, text] : rows) {
    CAPTURE(pathLength);
    CAPTURE(place);
    REPLACE(GetFileVersionInfoW, [&](auto original, auto... given) {
      auto* const last = static_cast<wchar_t*>(std::get<3>(std::tuple(given...))) + size / 2;
      const BOOL read = original(given...);
      return last[-1] = last[-2] = L'!', read;
    });
    REPLACE(VerQueryValueW, [&](auto original, auto block, auto* path, auto found, auto claimed) {
      const BOOL answer = original(block, path, found, claimed);
      if (std::wcslen(path) == pathLength) {
        *found = place == kSound ? *found : static_cast<char*>(const_cast<void*>(block)) + place;
        *claimed = length;
      }
      return answer;
    });
    CHECK(CompareFileVersion(file.c_str(), 1, 2, 3, 65535) == order);
    CHECK(GetFileVersionText(file.c_str()) == text);
  }
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
