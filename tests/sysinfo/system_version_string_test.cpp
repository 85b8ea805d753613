#include "lib/sysinfo/system_version_string.h"

#include <cstring>
#include <sstream>

#include "lib/registry/registry_string.h"
#include "lib/sysinfo/internal/system_description.h"
#include "lib/sysinfo/windows_release.h"
#include "tests/support/testing.h"

const WString kCutShort = L"catch(unhandled exception) while querying system version";
const WString kNt = L"Microsoft Windows NT ";

TEST_CASE("each Windows has the line and the answers that windows_names.txt gives it") {
  bool (*const predicates[])(const OSVERSIONINFOW&) = {
      IsWin95, IsWin98, IsWinNT,         IsWin2000,       IsWinXP,        IsWinVista,
      IsWin7,  IsWin8,  IsWinServer2003, IsWinServer2008, IsWinServer2012};
  std::istringstream cases(ReadBytes(ProgramPath(L"expected\\windows_names.txt")));
  int count = 0;
  for (std::string given, line; std::getline(cases, given) && std::getline(cases, line); ++count) {
    CAPTURE(given);
    internal::SystemFacts facts;
    OSVERSIONINFOEXW& version = facts.version;
    version.dwBuildNumber = 0xABCD0000 + 1381;
    DWORD type = 0, metric = 0, product = 0;
    char told[12] = "", pack[129] = "";
    REQUIRE(
        std::sscanf(given.c_str(),
                    "platform %lu, %lu.%lu, suites %hx, type %lu, architecture %hu, metric %lu, "
                    "product %lx, is %11[01], pack \"%128[^\"]\"",
                    &version.dwPlatformId, &version.dwMajorVersion, &version.dwMinorVersion,
                    &version.wSuiteMask, &type, &facts.architecture, &metric, &product, told,
                    pack) >= 9);
    std::copy_n(pack, std::strlen(pack), version.szCSDVersion);
    version.wProductType = static_cast<BYTE>(type);
    facts.metric = static_cast<int>(metric);
    facts.product = product != 0 ? std::optional(product) : std::nullopt;
    CHECK(internal::DescribeSystem(facts).c_str() == std::wstring(line.begin(), line.end()));
    CHECK(std::equal(std::begin(predicates), std::end(predicates), told, [&](auto is, char one) {
      return is(reinterpret_cast<const OSVERSIONINFOW&>(version)) == (one == '1');
    }));
  }
  CHECK(count == 56);
}

TEST_CASE("a raised answer breaks the line off where it is needed, and nowhere else") {
  internal::SystemFacts facts;
  facts.version = {284, 4, 0, 1381, 2, L"service pack 6", 0, 0, 0, 0, 0};
  facts.hasHotfixQ246009 = internal::Answer<bool>::Raised();
  CHECK(internal::DescribeSystem(facts) == kNt + kCutShort);
  facts.version.szCSDVersion[13] = L'5';
  CHECK(internal::DescribeSystem(facts) == kNt + L"(4.0.1381 service pack 5)");
  facts.record = internal::VersionRecord::kShort;
  facts.productOption = internal::Answer<internal::ProductOption>::Raised();
  CHECK(internal::DescribeSystem(facts) == kNt + kCutShort);
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
  using Product = BOOL(DWORD, DWORD, DWORD, DWORD, DWORD*);
  Product* const raise = [](auto...) -> BOOL { throw 1; };
  Product* const tell = [](DWORD major, DWORD minor, DWORD pack, DWORD packMinor, DWORD* type) {
    *type = major == 6 && minor == 1 && pack + packMinor == 0 ? PRODUCT_PROFESSIONAL : 0;
    return TRUE;
  };
  const std::tuple<DWORD, DWORD, int, Product*, WString> rows[] = {
      {5, 1, -1, raise, L"catched(GetSystemMetrics) Microsoft Windows XP (5.1.1381)"},
      {5, 2, SM_SERVERR2, raise, L"Microsoft Windows Server 2003 R2 Architecture 0005 (5.2.1381)"},
      {5, 2, -1, raise, L"catched(GetSystemMetrics) Windows Server 2003(5.2.1381)"},
      {6, 1, -1, nullptr, L"Windows Server 2008 R2 Architecture 0005 (6.1.1381)"},
      {6, 1, 0, tell, L"Windows Server 2008 R2 Professional Architecture 0005 (6.1.1381)"},
      {6, 1, 0, raise, L"Windows Server 2008 R2 " + kCutShort}};
  for (const auto& [major, minor, metric, product, line] : rows) {
    const auto windows = PretendWindows(2, major, minor);
    REPLACE(GetSystemMetrics, [&](auto, int index) {
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
  const WString sp6a = L"4.0 Service Pack 6a (Build 1381)";
  // On the last row's path a key stays open.
  const std::tuple<const wchar_t*, WString, WString, int> rows[] = {
      {hotfix, L"", L"error obtaining Windows NT4 registry information", 1},
      {options, L"WinNT", WString(L"Workstation ") + sp6a, 2},
      {options, L"LANMANNT", WString(L"Server ") + sp6a, 2},
      {options, L"ServerNT", WString(L"Advanced Server ") + sp6a, 2},
      {options, L"WINNT ", sp6a, 2},
      {options, longest, sp6a, 2},
      {options, longest + L"x", L"error obtaining Windows NT4 registry product information", 1}};
  const auto windows = PretendWindows(2, 4, 0, L"service pack 6");
  CHECK(GetSystemVersionNumbers() == L"(4.0.1381)");
  for (const auto& [key, type, rest, closed] : rows) {
    const StandInKey machine(HKEY_LOCAL_MACHINE);
    RegistryWriteString(HKEY_LOCAL_MACHINE, hotfix, L"", L"");
    StoreUnits(HKEY_LOCAL_MACHINE, key, L"ProductType", REG_SZ, type.c_str());
    int keysClosed = 0;
    REPLACE(RegCloseKey, [&](auto original, HKEY open) { return ++keysClosed, original(open); });
    CHECK((GetSystemVersionString() == kNt + rest && keysClosed == closed));
  }
}
