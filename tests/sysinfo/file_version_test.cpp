#include "lib/sysinfo/file_version.h"

#include <shlwapi.h>

#include <cstring>

#include "lib/platform/module.h"
#include "lib/string/utf8.h"
#include "lib/sysinfo/common_controls_version.h"
#include "lib/sysinfo/file_version_text.h"
#include "lib/sysinfo/internet_explorer_version.h"
#include "tests/sysinfo/simulated_cases.h"

TEST_CASE("CompareFileVersion, GetFileVersionString: the results match file_versions.txt") {
  int freed = 0;
  COUNT_CALLS(GlobalUnlock, freed);
  COUNT_CALLS(GlobalFree, freed);
  // Fills new memory with 0x11, and makes each version resource end in "!!".
  REPLACE(GlobalLock, [](auto original, auto memory) {
    return std::memset(original(memory), 0x11, GlobalSize(memory));
  });
  DWORD size = 0;
  REPLACE(GetFileVersionInfoW, [&](auto original, auto file, auto, DWORD room, void* data) {
    const BOOL read = original(file, 0, room, data);
    auto* const end = static_cast<wchar_t*>(data) + (size = room) / 2;
    end[-1] = end[-2] = L'!';
    return read;
  });
  // For a sub-block path of `pathLength` characters, makes VerQueryValueW store `length` and an
  // address `offset` bytes from the resource's start or end, or from the found value's start.
  char name[99] = "", from[9] = "";  // from: "start", "end" or "found"
  int numbers[4], offset = 0;
  std::size_t pathLength = 0;
  UINT length = 0;
  REPLACE(VerQueryValueW, [&](auto original, auto block, auto* path, auto found, auto claimed) {
    const BOOL answer = original(block, path, found, claimed);
    if (std::wcslen(path) == pathLength) {
      auto* const start = *from == 'f' ? static_cast<const void*>(*found) : block;
      *found = (char*)start + (*from == 'e' ? size : 0) + offset;
      *claimed = length;
    }
    return answer;
  });
  RunCases(L"file_versions.txt", [&] {
    pathLength = 0;
    std::sscanf(given.c_str(), "%98s %d.%d.%d.%d, path of %zu, %8[a-z] %d, length %u", name,
                &numbers[0], &numbers[1], &numbers[2], &numbers[3], &pathLength, from, &offset,
                &length);
    const std::wstring path = ProgramPath(std::filesystem::path(name));
    const auto& [major, minor, build, revision] = numbers;
    const int order = CompareFileVersionNumbers(path.c_str(), major, minor, build, revision);
    freed = 0;
    CHECK(CompareFileVersion(path.c_str(), major, minor, build, revision) == order);
    const std::string freedByIt = std::to_string(freed);
    wchar_t text[kFileVersionStringCapacity];
    const bool isKnown = GetFileVersionString(text, path.c_str());
    CHECK(isKnown == (text != std::wstring(L"not available")));
    return std::to_string(order) + " (freed " + freedByIt + ") " + Ascii(text) + " \"" +
           ToUtf8(GetFileVersionText(path.c_str())) + "\"";
  });
}

TEST_CASE("IsIEVersionAtLeast: reads Shdocvw.dll; GetIEVersionName: keeps the last name found") {
  wchar_t text[kFileVersionStringCapacity];
  int version[4];
  CHECK(GetSystemFileVersionString(text, L"Shdocvw.dll"));
  std::swscanf(text, L"%d.%d.%d.%d", &version[0], &version[1], &version[2], &version[3]);
  CHECK(IsIEVersionAtLeast(nullptr, version));
  ++version[3];
  CHECK_FALSE(IsIEVersionAtLeast(nullptr, version));
  REPLACE(GetSystemDirectoryW, [](auto, auto to, auto) {
    lstrcpyW(to, L"C:\\none");
    return 7U;
  });
  CHECK_FALSE(IsIEVersionAtLeast(nullptr, {0, 0, 0, 0}));
  CHECK(GetSystemFileVersionString(text, L"Shdocvw.dll"));
  CHECK(std::wstring(text) == L"not available");
  CHECK(WString(GetIEVersionName(nullptr, {5, 50, 4134, 601})) == L"");
  CHECK(WString(GetIEVersionName(nullptr, {5, 50, 4134, 600})) == L"Internet Explorer 5.5");
  CHECK(WString(GetIEVersionName(nullptr, {6, 0, 0, 0})) == L"Internet Explorer 5.5");
}

TEST_CASE("GetComCtlVersion: returns comctl32.dll's version, or 4.0 if DllGetVersion is missing") {
  static HRESULT result;
  const auto report = +[](DLLVERSIONINFO* version) -> HRESULT {
    *version = {version->cbSize, version->cbSize == 20 ? 6UL : 0, 0x1000A, 0, 0};
    return result;
  };
  const OwnedModule kept(LoadLibraryW(L"comctl32.dll"));
  DWORD major = 77, minor = 77;
  {
    const ReplacedExport version("DllGetVersion", report);
    result = E_ABORT;
    CHECK_BOTH(GetComCtlVersion(&major, &minor) == E_FAIL, GetComCtlVersionPacked() == 0);
    CHECK_BOTH(major == 77, minor == 77);
    result = S_FALSE;
    CHECK_BOTH(GetComCtlVersion(&major, &minor) == S_FALSE, GetComCtlVersionPacked() == 0x6000A);
    CHECK_BOTH(major == 6, minor == 0x1000A);
  }
  const ReplacedExport missing("DllGetVersion", nullptr);
  CHECK_BOTH(GetComCtlVersion(&major, &minor) == S_OK, GetComCtlVersionPacked() == 0x40000);
  CHECK_BOTH(major == 4, minor == 0);
  CHECK(GetComCtlVersion(nullptr, &minor) == E_INVALIDARG);
  CHECK(GetComCtlVersion(&major, nullptr) == E_INVALIDARG);
}
