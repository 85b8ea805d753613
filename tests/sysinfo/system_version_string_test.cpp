#include "lib/sysinfo/system_version_string.h"

#include <string>

#include "lib/registry/registry_string.h"
#include "lib/registry/registry_value.h"
#include "tests/support/catch.h"
#include "tests/support/child_process.h"
#include "tests/support/scratch_key.h"
#include "tests/sysinfo/pretended_windows.h"

namespace kelvo {

namespace {

const WString kCutShort = L"catch(unhandled exception) while querying system version";

using Product = BOOL WINAPI(DWORD, DWORD, DWORD, DWORD, DWORD*);
BOOL WINAPI Raise(DWORD, DWORD, DWORD, DWORD, DWORD*) { throw 1; }
BOOL WINAPI Professional(DWORD major, DWORD minor, DWORD spMajor, DWORD spMinor, DWORD* type) {
  *type = major == 6 && minor == 1 && spMajor + spMinor == 0 ? PRODUCT_PROFESSIONAL : 0;
  return TRUE;
}

}  // namespace

TEST_CASE("a version that cannot be read is told as such") {
  const auto fails = KELVO_REPLACE_IMPORT(GetVersionExW, [](auto...) { return FALSE; });
  CHECK(GetSystemVersionString() == L"queryingg OSVERSIONINFOEX and OSVERSIONINFO failed...");
  CHECK(GetSystemVersionNumbers() == L"0.0.0.0");
  const auto raises = KELVO_REPLACE_IMPORT(GetVersionExW, [](auto...) -> BOOL { throw 1; });
  CHECK(GetSystemVersionString() == kCutShort);
  CHECK(GetSystemVersionNumbers() == L"0.0.0.0");
}

TEST_CASE("the line tells what metrics and functions answer, are missing or raise") {
  constexpr int kFault = -1;
  struct Row {
    DWORD major, minor;
    int metric;
    Product* product;
    WString line;
  };
  const Row rows[] = {
      {5, 1, SM_TABLETPC, Raise, L"Windows XP Media Center (5.1.1381)"},
      {5, 1, SM_SERVERR2, Raise, L"Microsoft Windows XP (5.1.1381)"},
      {5, 1, kFault, Raise, L"catched(GetSystemMetrics) Microsoft Windows XP (5.1.1381)"},
      {5, 2, SM_SERVERR2, Raise, L"Microsoft Windows Server 2003 R2 Architecture 0005 (5.2.1381)"},
      {5, 2, kFault, Raise, L"catched(GetSystemMetrics) Windows Server 2003(5.2.1381)"},
      {6, 1, kFault, nullptr, L"Windows Server 2008 R2 Architecture 0005 (6.1.1381)"},
      {6, 1, 0, Professional, L"Windows Server 2008 R2 Professional Architecture 0005 (6.1.1381)"},
      {6, 1, 0, Raise, L"Windows Server 2008 R2 " + kCutShort},
  };
  const test::ReplacedExport native("GetNativeSystemInfo", nullptr);
  const auto processor = KELVO_REPLACE_IMPORT(
      GetSystemInfo, [](auto, SYSTEM_INFO* info) { info->wProcessorArchitecture = 5; });
  for (const Row& row : rows) {
    const auto windows = test::PretendWindows(2, row.major, row.minor, L"");
    const auto metrics = KELVO_REPLACE_IMPORT(GetSystemMetrics, [&](auto, int index) {
      return row.metric == kFault ? *static_cast<volatile int*>(nullptr) : index == row.metric;
    });
    const test::ReplacedExport product("GetProductInfo", reinterpret_cast<void*>(row.product));
    CHECK(GetSystemVersionString() == row.line);
  }
}

TEST_CASE("Windows NT 4.0 is told from its registry where it tells no more itself") {
  constexpr const wchar_t* kHotfix =
      L"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Hotfix\\Q246009";
  constexpr const wchar_t* kOptions = L"SYSTEM\\CurrentControlSet\\Control\\ProductOptions";
  const WString longest(100, L'x');
  struct Row {
    const wchar_t* key;
    WString type;
    const wchar_t* rest;
    int keysClosed;
  };
  const Row rows[] = {
      {kHotfix, L"", L"error obtaining Windows NT4 registry information", 1},
      {kOptions, L"LanmanNT", L"Server 4.0 Service Pack 6a (Build 1381)", 2},
      {kOptions, longest, L"4.0 Service Pack 6a (Build 1381)", 2},
      // The key stays open.
      {kOptions, longest + L"x", L"error obtaining Windows NT4 registry product information", 1},
  };
  const auto windows = test::PretendWindows(2, 4, 0, L"service pack 6");
  CHECK(GetSystemVersionNumbers() == L"(4.0.1381)");
  for (const Row& row : rows) {
    const test::StandInKey machine(HKEY_LOCAL_MACHINE);
    RegistryWriteString(HKEY_LOCAL_MACHINE, kHotfix, L"", L"");
    // Without a terminator, and none behind, which Windows would store too.
    WriteRegistryValue(HKEY_LOCAL_MACHINE, row.key, L"ProductType", REG_SZ,
                       (row.type + L"#").c_str(), static_cast<DWORD>(row.type.length() * 2));
    int keysClosed = 0;
    const auto close = KELVO_REPLACE_IMPORT(
        RegCloseKey, [&](auto original, HKEY key) { return ++keysClosed, original(key); });
    CHECK(GetSystemVersionString() == WString(L"Microsoft Windows NT ") + row.rest);
    CHECK(keysClosed == row.keysClosed);
  }
}

TEST_CASE("a program is told the Windows that is set for it") {
  if (GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") == nullptr) {
    WARN("needs Wine, where the version can be set");
    return;
  }
  using Row = std::pair<const wchar_t*, std::string>;
  for (const auto& [version, line] :
       {Row(L"win98", "Microsoft Windows 98 SE "),
        {L"nt40", "Microsoft Windows NT (4.0.1381 Service Pack 6a)"},
        {L"win2k", "Microsoft Windows 2000 (5.0.2195 Service Pack 4)"},
        {L"winxp64", "Microsoft Windows Server 2003 x64 (5.2.3790 Service Pack 2)"},
        {L"win2003", "Microsoft Windows Server 2003 x64 (5.2.3790 Service Pack 2)"},
        {L"vista", "Windows Vista  x64 (6.0.6002 Service Pack 2)"},
        {L"win7", "Windows Server 2008 R2 Standard Edition x64 (6.1.7601 Service Pack 1)"},
        {L"win8", "Windows 8  x64 (6.2.9200)"}}) {
    const wchar_t* const setting = L"Software\\Wine\\AppDefaults\\system_report.exe";
    RegistryWriteString(HKEY_CURRENT_USER, setting, L"Version", version);
    const std::string output = test::RunChild(test::ProgramPath(L"system_report.exe")).output;
    RegDeleteTreeW(HKEY_CURRENT_USER, setting);
    CHECK(output.starts_with("GetSystemVersionString()              " + line + "\r\n"));
  }
}

}  // namespace kelvo
