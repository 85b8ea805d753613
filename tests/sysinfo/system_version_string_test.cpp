#include "lib/sysinfo/system_version_string.h"

#include <cstring>

#include "tests/sysinfo/simulated_cases.h"

// The queries to the simulated Windows, in order, except those about the architecture.
static std::string asked;
static void NoteQuery(const std::string& question, const std::string& function) {
  asked += " " + question;
  if (Has("raises " + function)) {
    *static_cast<volatile int*>(nullptr) = 1;
  }
}

static void WINAPI ReportSystem(SYSTEM_INFO* info) {
  info->wProcessorArchitecture = static_cast<WORD>(Number("architecture", 9));
}
static BOOL WINAPI ReportProduct(DWORD major, DWORD, DWORD pack, DWORD packMinor, DWORD* type) {
  NoteQuery("product", "GetProductInfo");
  *type = major == 6 && pack + packMinor == 0 ? Number("product", 0) : 0;
  return TRUE;
}

TEST_CASE("GetSystemVersionString: names each Windows version as in windows_names.txt") {
  OSVERSIONINFOEXW version;
  REPLACE(GetVersionExW, [&](auto, OSVERSIONINFOW* record) {
    const DWORD size = record->dwOSVersionInfoSize;
    NoteQuery(std::to_string(size), "GetVersionExW");
    std::memcpy(record, &version, size);
    record->dwOSVersionInfoSize = size;
    return !Has("no version") && (size == 276 || !Has("short"));
  });
  REPLACE(GetSystemInfo, [](auto, auto* info) { info->wProcessorArchitecture = 0xABCD; });
  REPLACE(GetSystemMetrics, [](auto, int index) {
    NoteQuery(std::to_string(index), "GetSystemMetrics");
    return Has("metric " + std::to_string(index)) ? 1 : 0;
  });
  REPLACE(RegOpenKeyExW, [](auto, HKEY root, std::wstring path, DWORD, REGSAM access, HKEY* key) {
    const std::wstring name = path.substr(path.rfind(L'\\') + 1);
    CHECK(path == (name == L"ProductOptions"
                       ? L"SYSTEM\\CurrentControlSet\\Control\\ProductOptions"
                       : L"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Hotfix\\Q246009"));
    CHECK(access == KEY_QUERY_VALUE);
    NoteQuery(Ascii(name), "RegOpenKeyExW");
    const bool opens = root == HKEY_LOCAL_MACHINE && Has(Ascii(name));
    *key = opens ? root : nullptr;
    return opens ? ERROR_SUCCESS : ERROR_FILE_NOT_FOUND;
  });
  REPLACE(RegQueryValueExW, [](auto, auto, std::wstring name, auto, auto, BYTE* data, DWORD* size) {
    NoteQuery(Ascii(name), "RegQueryValueExW");
    // Simulates a stored text without a terminator.
    const std::string text = given.substr(given.find("ProductOptions ") + 15);
    std::copy_n(text.begin(), std::min<std::size_t>(text.length(), *size / 2),
                reinterpret_cast<wchar_t*>(data));
    const DWORD room = std::exchange(*size, static_cast<DWORD>(text.length() * 2));
    return Has("size only") || *size <= room ? ERROR_SUCCESS : ERROR_MORE_DATA;
  });
  REPLACE(RegCloseKey, [](auto...) {
    NoteQuery("closed", "RegCloseKey");
    return ERROR_SUCCESS;
  });
  RunCases(L"windows_names.txt", [&] {
    version = {};
    version.dwBuildNumber = 0xABCD0000 + 1381;
    version.dwPlatformId = Number("platform", VER_PLATFORM_WIN32_NT);
    version.wSuiteMask = static_cast<WORD>(Number("suites", 0));
    version.wProductType = static_cast<BYTE>(Number("type", VER_NT_WORKSTATION));
    std::sscanf(given.c_str(), "%lu.%lu", &version.dwMajorVersion, &version.dwMinorVersion);
    const std::string pack = given.substr(Has("pack") ? given.find('"') + 1 : given.length());
    std::copy_n(pack.begin(), std::min(pack.find('"'), pack.length()), version.szCSDVersion);
    const ReplacedExport native("GetNativeSystemInfo", Has("no native") ? nullptr : &ReportSystem);
    const ReplacedExport info("GetProductInfo", Has("product") ? &ReportProduct : nullptr);
    asked.clear();
    const std::string line = Ascii(GetSystemVersionString().c_str());
    REQUIRE(asked.starts_with(" 284"));
    return line + (asked == " 284" || Has("questions left out") ? "" : ", asked" + asked.substr(4));
  });
}

TEST_CASE("GetSystemVersionNumbers: allocates once, returns zeros if GetVersionExW fails") {
  {
    const auto windows = PretendWindows(2, 10, 0);
    int left = 1;
    REPLACE(malloc,
            [&](auto original, std::size_t size) { return left-- > 0 ? original(size) : nullptr; });
    const WString numbers = GetSystemVersionNumbers();
    left = INT_MAX;
    CHECK(numbers == L"(10.0.1381)");
  }
  for (const bool isThrown : {false, true}) {
    REPLACE(GetVersionExW, [=](auto...) { return isThrown ? throw 1 : FALSE; });
    CHECK(GetSystemVersionNumbers() == L"0.0.0.0");
  }
}
