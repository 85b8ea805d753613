#include "lib/sysinfo/system_version_string.h"

#include "lib/registry/registry_string.h"
#include "lib/registry/registry_value.h"
#include "lib/sysinfo/system_description.h"
#include "tests/support/testing.h"

static SystemFacts Facts(DWORD platform, DWORD major, DWORD minor, const WString& servicePack) {
  SystemFacts facts;
  facts.version = {284, major, minor, 0xABCD0000 + 1381, platform, L"", 0, 0, 0, 0, 0};
  std::copy_n(servicePack.c_str(), servicePack.length(), facts.version.szCSDVersion);
  return facts;
}

const WString kCutShort = L"catch(unhandled exception) while querying system version";
const WString kNt = L"Microsoft Windows NT ";

TEST_CASE("each Windows of the NT line has its name") {
  // Version, suites, product type, architecture, metric, GetProductInfo's type (0: no function).
  const std::tuple<DWORD, DWORD, WORD, BYTE, WORD, int, DWORD, WString> rows[] = {
      {5, 0, 0xFFFF, 1, 0, 0, 0, L"Microsoft Windows 2000 "},
      {5, 1, 0x100, 1, 9, 0, 0, L"Microsoft Windows XP "},
      {5, 1, 0x240, 1, 0, SM_STARTER, 0, L"Windows XP Starter "},
      {5, 1, 0x240, 1, 0, SM_MEDIACENTER, 0, L"Windows XP Media Center "},
      {5, 1, 0x240, 1, 0, 0, 0, L"Windows XP Home "},
      {5, 1, 0x040, 1, 0, 0, 0, L"Windows XP Embedded"},
      {5, 2, 0, 1, 9, 0, 0, L"Microsoft Windows Server 2003 x64 "},
      {5, 2, 0xE586, 3, 0, SM_SERVERR2, 0,
       L"Microsoft Windows Server 2003 R2 Datacenter Enterprise Storage +BackOffice x86 "},
      {5, 2, 0xC400, 3, 9, 0, 0, L"Windows Server 2003 Web x64 "},
      {5, 2, 0xC000, 3, 9, 0, 0, L"Windows Server 2003 Compute Cluster x64 "},
      {5, 2, 0x8012, 3, 9, 0, 0, L"Windows Home ServerEnterprise x64 (Application Server Mode) "},
      {5, 2, 0x0110, 3, 6, 0, 0, L"Microsoft Windows Server 2003 Architecture 0006 "},
      {5, 3, 0, 1, 9, 0, 0, L""},
      {6, 0, 0x010, 1, 9, 0, 0, L"Windows Vista x64 "},
      {6, 0, 0x200, 1, 0, 0, 0x02, L"Windows Vista Home Home Basic Edition x86 "},
      {6, 1, 0, 1, 9, 0, 0x30, L"Windows 7 Professional x64 "},
      {6, 2, 0x110, 1, 9, 0, 0x65, L"Windows 8  x64 "},
      {6, 3, 0, 1, 12, 0, 0x04, L"Windows 8.1 Enterprise Edition Architecture 000c "},
      {6, 4, 0, 1, 9, 0, 0x19, L"Small Business Server Premium Edition x64 "},
      {6, 0, 0x10, 3, 9, 0, 0x12,
       L"Windows Server 2008 Cluster Server Edition (Application Server Mode) x64 "},
      {6, 1, 0, 3, 9, 0, 0x11, L"Windows Server 2008 R2 Web Server Edition x64 "},
      {6, 2, 0, 2, 9, 0, 0x10, L"Windows Server 2012  x64 "},
      {6, 3, 0, 0, 9, 0, 0, L"Windows Server 2012 R2 x64 "},
      {10, 0, 0xFFFF, 1, 9, 0, 0, L""}};
  for (const auto& [major, minor, suites, type, architecture, metric, product, name] : rows) {
    SystemFacts facts = Facts(2, major, minor, L"");
    facts.version.wSuiteMask = suites;
    facts.version.wProductType = type;
    facts.architecture = architecture;
    facts.metric = metric;
    facts.product = product != 0 ? std::optional(product) : std::nullopt;
    CHECK(DescribeSystem(facts) == name + FormatVersionNumbers(facts.version));
  }
}

TEST_CASE("the other Windows, service packs and an NT without the extended record are told") {
  SystemFacts raised = Facts(2, 4, 0, L"service pack 6");
  raised.hasHotfixQ246009 = Answer<bool>::Raised();
  SystemFacts raisedEarlier = raised;
  raisedEarlier.record = VersionRecord::kShort;
  raisedEarlier.productOption = Answer<ProductOption>::Raised();
  const auto product = [&](const wchar_t* type) {
    SystemFacts facts = raisedEarlier;
    facts.version.szCSDVersion[13] = L'5';  // needs no answer about the hotfix
    facts.productOption = ProductOption{ProductOption::State::kRead, type};
    return facts;
  };
  const WString longest(128, L'x');
  const std::pair<SystemFacts, WString> rows[] = {
      {Facts(0, 1, 30, L""), L"Microsoft Win32s"},
      {Facts(1, 4, 0, L"BA"), L"Microsoft Windows 95 "},
      {Facts(1, 4, 0, L" B"), L"Microsoft Windows 95 OSR2 "},
      {Facts(1, 4, 0, L" C"), L"Microsoft Windows 95 OSR2 "},
      {Facts(1, 4, 10, L""), L"Microsoft Windows 98 "},
      {Facts(1, 4, 10, L" A "), L"Microsoft Windows 98 SE "},
      {Facts(1, 4, 90, L" A"), L"Microsoft Windows Millennium Edition"},
      {Facts(1, 5, 0, L""), L""},
      {Facts(3, 5, 0, L""), L""},
      {Facts(2, 10, 0, longest), L"(10.0.1381 " + longest + L")"},
      {Facts(2, 5, 3, L"Service Pack 6"), L"(5.3.1381 Service Pack 6)"},
      {Facts(2, 4, 0, L"service pack 6"), kNt + L"service pack 6 (Build 1381)"},
      {raised, kNt + kCutShort},
      {raisedEarlier, kNt + kCutShort},
      {product(L"WinNT"), kNt + L"Workstation 4.0 (4.0.1381 service pack 5)"},
      {product(L"LANMANNT"), kNt + L"Server 4.0 (4.0.1381 service pack 5)"},
      {product(L"ServerNT"), kNt + L"Advanced Server 4.0 (4.0.1381 service pack 5)"},
      {product(L"WINNT "), kNt + L"4.0 (4.0.1381 service pack 5)"}};
  for (const auto& [facts, line] : rows) {
    CHECK(DescribeSystem(facts) == line);
  }
}

TEST_CASE("a question that fails or raises leaves its text") {
  {
    KELVO_REPLACE(GetVersionExW, [](auto...) { return FALSE; });
    CHECK(GetSystemVersionString() == L"queryingg OSVERSIONINFOEX and OSVERSIONINFO failed...");
    CHECK(GetSystemVersionNumbers() == L"0.0.0.0");
  }
  {
    KELVO_REPLACE(GetVersionExW, [](auto...) -> BOOL { throw 1; });
    CHECK((GetSystemVersionString() == kCutShort && GetSystemVersionNumbers() == L"0.0.0.0"));
  }
  const ReplacedExport native("GetNativeSystemInfo", nullptr);
  KELVO_REPLACE(GetSystemInfo, [](auto, SYSTEM_INFO* info) { info->wProcessorArchitecture = 5; });
  using Product = BOOL(DWORD, DWORD, DWORD, DWORD, DWORD*);
  Product* const raise = [](auto...) -> BOOL { throw 1; };
  Product* const tell = [](DWORD major, DWORD minor, DWORD pack, DWORD packMinor, DWORD* type) {
    *type = major == 6 && minor == 1 && pack + packMinor == 0 ? PRODUCT_PROFESSIONAL : 0;
    return TRUE;
  };
  const std::tuple<DWORD, DWORD, int, Product*, WString> rows[] = {
      {5, 1, SM_TABLETPC, raise, L"Windows XP Media Center (5.1.1381)"},
      {5, 1, SM_SERVERR2, raise, L"Microsoft Windows XP (5.1.1381)"},
      {5, 1, -1, raise, L"catched(GetSystemMetrics) Microsoft Windows XP (5.1.1381)"},
      {5, 2, SM_SERVERR2, raise, L"Microsoft Windows Server 2003 R2 Architecture 0005 (5.2.1381)"},
      {5, 2, -1, raise, L"catched(GetSystemMetrics) Windows Server 2003(5.2.1381)"},
      {6, 1, -1, nullptr, L"Windows Server 2008 R2 Architecture 0005 (6.1.1381)"},
      {6, 1, 0, tell, L"Windows Server 2008 R2 Professional Architecture 0005 (6.1.1381)"},
      {6, 1, 0, raise, L"Windows Server 2008 R2 " + kCutShort}};
  for (const auto& [major, minor, metric, product, line] : rows) {
    const auto windows = PretendWindows(2, major, minor);
    KELVO_REPLACE(GetSystemMetrics, [&](auto, int index) {
      return metric == -1 ? *static_cast<volatile int*>(nullptr) : index == metric;
    });
    const ReplacedExport productInfo("GetProductInfo", product);
    CHECK(GetSystemVersionString() == line);
  }
}

TEST_CASE("Windows NT 4.0 is told from its registry where it tells no more itself") {
  const wchar_t* const hotfix = L"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Hotfix\\Q246009";
  const wchar_t* const options = L"SYSTEM\\CurrentControlSet\\Control\\ProductOptions";
  const WString longest(100, L'x');
  // On the last row's path a key stays open.
  const std::tuple<const wchar_t*, WString, WString, int> rows[] = {
      {hotfix, L"", L"error obtaining Windows NT4 registry information", 1},
      {options, L"LanmanNT", L"Server 4.0 Service Pack 6a (Build 1381)", 2},
      {options, longest, L"4.0 Service Pack 6a (Build 1381)", 2},
      {options, longest + L"x", L"error obtaining Windows NT4 registry product information", 1}};
  const auto windows = PretendWindows(2, 4, 0, L"service pack 6");
  CHECK(GetSystemVersionNumbers() == L"(4.0.1381)");
  for (const auto& [key, type, rest, closed] : rows) {
    const StandInKey machine(HKEY_LOCAL_MACHINE);
    RegistryWriteString(HKEY_LOCAL_MACHINE, hotfix, L"", L"");
    // Without a terminator, and none behind, which Windows would store too.
    WriteRegistryValue(HKEY_LOCAL_MACHINE, key, L"ProductType", REG_SZ, (type + L"#").c_str(),
                       static_cast<DWORD>(type.length() * 2));
    int keysClosed = 0;
    KELVO_REPLACE(RegCloseKey,
                  [&](auto original, HKEY open) { return ++keysClosed, original(open); });
    CHECK(GetSystemVersionString() == kNt + rest);
    CHECK(keysClosed == closed);
  }
}

TEST_CASE("a program is told the Windows that is set for it", "[wine]") {
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
    const std::string output = RunChild(ProgramPath(L"system_report.exe")).output;
    RegDeleteTreeW(HKEY_CURRENT_USER, setting);
    CHECK(output.starts_with("GetSystemVersionString()              " + line + "\r\n"));
  }
}
