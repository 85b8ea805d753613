#include "lib/sysinfo/system_version_string.h"

#include <cstring>
#include <sstream>

#include "lib/registry/registry_string.h"
#include "lib/sysinfo/windows_release.h"
#include "tests/support/testing.h"

const WString kCutShort = L"catch(unhandled exception) while querying system version";

static DWORD productType = 0;
static BOOL WINAPI TellProduct(DWORD major, DWORD, DWORD pack, DWORD packMinor, DWORD* type) {
  *type = major == 6 && pack + packMinor == 0 ? productType : 0;
  return TRUE;
}

TEST_CASE("each Windows has the answers and the line that windows_names.txt gives it") {
  bool (*const predicates[])() = {IsWin95,         IsWin98,         IsWinNT,        IsWin2000,
                                  IsWinXP,         IsWinVista,      IsWin7,         IsWin8,
                                  IsWinServer2003, IsWinServer2008, IsWinServer2012};
  const StandInKey machine(HKEY_LOCAL_MACHINE);
  OSVERSIONINFOEXW version;
  WORD architecture = 0;
  int metric = 0;
  std::wstring seen, asked;
  REPLACE(GetVersionExW, [&](auto, OSVERSIONINFOW* record) {
    const DWORD size = record->dwOSVersionInfoSize;
    std::memcpy(record, &version, size);
    record->dwOSVersionInfoSize = size;
    return TRUE;
  });
  REPLACE_LOOKUP(GetNativeSystemInfo,
                 [&](auto, auto* info) { info->wProcessorArchitecture = architecture; });
  REPLACE(GetSystemInfo, [](auto, auto* info) { info->wProcessorArchitecture = 5; });
  REPLACE(GetSystemMetrics, [&](auto, int index) {
    asked += L" " + std::to_wstring(index);
    return index == metric ? 1 : 0;
  });
  std::istringstream cases(ReadBytes(ProgramPath(L"expected\\windows_names.txt")));
  for (std::string given, answer; std::getline(cases, given) && std::getline(cases, answer);) {
    version = {};
    version.dwBuildNumber = 0xABCD0000 + 1381;
    char pack[129] = "";
    std::sscanf(given.c_str(),
                "platform %lu, %lu.%lu, suites %hx, type %hhu, architecture %hu, metric %d, "
                "product %lx, pack \"%128[^\"]\"",
                &version.dwPlatformId, &version.dwMajorVersion, &version.dwMinorVersion,
                &version.wSuiteMask, &version.wProductType, &architecture, &metric, &productType,
                pack);
    std::copy_n(pack, std::strlen(pack), version.szCSDVersion);
    const ReplacedExport product("GetProductInfo", productType != 0 ? &TellProduct : nullptr);
    seen += std::wstring(given.begin(), given.end()) + L"\nis ";
    for (const auto is : predicates) {
      seen += is() ? L'1' : L'0';
    }
    asked.clear();
    const WString line = GetSystemVersionString();
    seen += L", asks" + asked + L": " + line.c_str() + L"\n";
  }
  CheckAgainstFile(seen, L"windows_names.txt");
}

TEST_CASE("a question that fails or raises leaves its text") {
  for (const bool raises : {false, true}) {
    REPLACE(GetVersionExW, [=](auto...) { return raises ? throw 1 : FALSE; });
    CHECK(GetSystemVersionString() ==
          (raises ? kCutShort : L"queryingg OSVERSIONINFOEX and OSVERSIONINFO failed..."));
    CHECK(GetSystemVersionNumbers() == L"0.0.0.0");
  }
  const ReplacedExport native("GetNativeSystemInfo", nullptr);
  REPLACE(GetSystemInfo, [](auto, SYSTEM_INFO* info) { info->wProcessorArchitecture = 5; });
  REPLACE(GetSystemMetrics, [](auto...) { return *static_cast<volatile int*>(nullptr); });
  const ReplacedExport product(
      "GetProductInfo", +[](DWORD, DWORD, DWORD, DWORD, DWORD*) -> BOOL { throw 1; });
  struct Row {
    DWORD major, minor;
    WString line;
  };
  const Row rows[] = {{5, 1, L"catched(GetSystemMetrics) Microsoft Windows XP (5.1.1381)"},
                      {5, 2, L"catched(GetSystemMetrics) Windows Server 2003(5.2.1381)"},
                      {6, 1, L"Windows Server 2008 R2 " + kCutShort}};
  for (const auto& [major, minor, line] : rows) {
    const auto windows = PretendWindows(2, major, minor);
    CHECK(GetSystemVersionString() == line);
  }
  const ReplacedExport missing("GetProductInfo", nullptr);
  const auto windows = PretendWindows(2, 6, 1);
  CHECK(GetSystemVersionString() == L"Windows Server 2008 R2 Architecture 0005 (6.1.1381)");
}

TEST_CASE("Windows NT 4.0 is told from its registry where it tells no more itself") {
  const WString hotfix = L"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Hotfix\\Q246009";
  const WString options = L"SYSTEM\\CurrentControlSet\\Control\\ProductOptions";
  const WString both = options + hotfix;
  const WString longest(100, L'x');
  const WString sp6a = L"4.0 Service Pack 6a (Build 1381)";
  const WString unreadable = L"error obtaining Windows NT4 registry product information";
  struct Row {
    const wchar_t* servicePack;
    WString key, type, line, opened;
    int leftOpen;
    // 1 raises on opening, 2 on reading.
    int raises;
  };
  const Row rows[] = {
      {L"", hotfix, L"", L"error obtaining Windows NT4 registry information", options, 0, 0},
      {L"", options, L"WinNT", L"Workstation 4.0 (4.0.1381)", options, 0, 0},
      {L"service pack 5", options, L"x", L"4.0 (4.0.1381 service pack 5)", options, 0, 0},
      {L"service pack 6", options, L"LANMANNT", L"Server " + sp6a, both, 0, 0},
      {L"Service Pack 6", options, L"ServerNT", L"Advanced Server " + sp6a, both, 0, 0},
      {L"Service Pack 6", options, L"WINNT ", sp6a, both, 0, 0},
      {L"Service Pack 6", options, longest, sp6a, both, 0, 0},
      {L"Service Pack 6", options, longest + L"x", unreadable, options, 1, 0},
      {L"Service Pack 6", options, L"WINNT", kCutShort, options, 0, 1},
      {L"Service Pack 6", options, L"WINNT", kCutShort, options, 0, 2}};
  for (const auto& [servicePack, key, type, line, opened, leftOpen, raises] : rows) {
    CAPTURE(line);
    const auto windows = PretendWindows(2, 4, 0, servicePack);
    const StandInKey machine(HKEY_LOCAL_MACHINE);
    RegistryWriteString(HKEY_LOCAL_MACHINE, hotfix.c_str(), L"", L"");
    StoreUnits(HKEY_LOCAL_MACHINE, key.c_str(), L"ProductType", REG_SZ, type.c_str());
    WString seen;
    int open = 0;
    REPLACE(RegOpenKeyExW,
            [&](auto original, auto root, auto* path, auto, REGSAM access, auto out) {
              seen += path;
              const LSTATUS status = raises == 1 ? throw 1 : original(root, path, 0, access, out);
              CHECK(access == KEY_QUERY_VALUE);
              open += status == ERROR_SUCCESS ? 1 : 0;
              return status;
            });
    REPLACE(RegQueryValueExW, [&](auto original, auto... given) {
      return raises == 2 ? throw 1 : original(given...);
    });
    REPLACE(RegCloseKey, [&](auto original, HKEY closed) { return --open, original(closed); });
    CHECK(GetSystemVersionString() == L"Microsoft Windows NT " + line);
    CHECK(seen == opened);
    CHECK(open == leftOpen);
  }
}
