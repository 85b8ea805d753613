#include "lib/sysinfo/system_description.h"

#include "tests/support/catch.h"

namespace kelvo {

namespace {

SystemFacts Facts(DWORD platform, DWORD major, DWORD minor, const WString& servicePack) {
  SystemFacts facts;
  facts.version = {284, major, minor, 0xABCD0000 + 1381, platform, L"", 0, 0, 0, 0, 0};
  std::copy_n(servicePack.c_str(), servicePack.length(), facts.version.szCSDVersion);
  return facts;
}

}  // namespace

TEST_CASE("each Windows of the NT line has its name") {
  struct Row {
    DWORD major, minor;
    WORD suites;
    BYTE productType;
    WORD architecture;
    int metric;
    DWORD product;  // none without GetProductInfo, which Vista brought
    WString name;
  };
  const Row rows[] = {
      {5, 0, 0xFFFF, 1, 0, 0, 0, L"Microsoft Windows 2000 "},
      {5, 1, 0x100, 1, 9, 0, 0, L"Microsoft Windows XP "},
      {5, 1, 0x240, 1, 0, SM_STARTER, 0, L"Windows XP Starter "},
      {5, 1, 0x240, 1, 0, SM_MEDIACENTER, 0, L"Windows XP Media Center "},
      {5, 1, 0x240, 1, 0, SM_TABLETPC, 0, L"Windows XP Media Center "},
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
      {6, 0, 0x010, 3, 9, 0, 0x12,
       L"Windows Server 2008 Cluster Server Edition (Application Server Mode) x64 "},
      {6, 1, 0, 3, 9, 0, 0x11, L"Windows Server 2008 R2 Web Server Edition x64 "},
      {6, 2, 0, 2, 9, 0, 0x10, L"Windows Server 2012  x64 "},
      {6, 3, 0, 0, 9, 0, 0x0E,
       L"Windows Server 2012 R2 Enterprise Edition (core installation) x64 "},
      {10, 0, 0xFFFF, 1, 9, 0, 0, L""},
  };
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

TEST_CASE("Windows 95 to Me have names only") {
  const std::pair<SystemFacts, WString> rows[] = {
      {Facts(0, 1, 30, L""), L"Microsoft Win32s"},
      {Facts(1, 4, 0, L"BA"), L"Microsoft Windows 95 "},
      {Facts(1, 4, 0, L" B"), L"Microsoft Windows 95 OSR2 "},
      {Facts(1, 4, 0, L" C"), L"Microsoft Windows 95 OSR2 "},
      {Facts(1, 4, 10, L""), L"Microsoft Windows 98 "},
      {Facts(1, 4, 10, L" A "), L"Microsoft Windows 98 SE "},
      {Facts(1, 4, 90, L" A"), L"Microsoft Windows Millennium Edition"},
      {Facts(1, 5, 0, L""), L""},
      {Facts(3, 5, 0, L""), L""}};
  for (const auto& [facts, line] : rows) {
    CHECK(DescribeSystem(facts) == line);
  }
}

TEST_CASE("service pack and product type stand where they are known") {
  const WString longest(128, L'x');
  CHECK(DescribeSystem(Facts(2, 10, 0, longest)) == L"(10.0.1381 " + longest + L")");
  CHECK(DescribeSystem(Facts(2, 5, 3, L"Service Pack 6")) == L"(5.3.1381 Service Pack 6)");
  SystemFacts facts = Facts(2, 4, 0, L"service pack 6");
  CHECK(DescribeSystem(facts) == L"Microsoft Windows NT service pack 6 (Build 1381)");
  facts.hasHotfixQ246009 = Answer<bool>::Raised();
  CHECK(DescribeSystem(facts) == WString(L"Microsoft Windows NT ") + kDescriptionCutShort);
  facts.record = VersionRecord::kShort;
  facts.productOption = Answer<ProductOption>::Raised();
  CHECK(DescribeSystem(facts) == WString(L"Microsoft Windows NT ") + kDescriptionCutShort);
  // No question for the hotfix where no text needs it.
  facts.version.szCSDVersion[13] = L'5';
  using Pair = std::pair<const wchar_t*, const wchar_t*>;
  for (const auto& [type, product] : {Pair(L"WinNT", L"Workstation "),
                                      {L"LANMANNT", L"Server "},
                                      {L"ServerNT", L"Advanced Server "},
                                      {L"WINNT ", L""}}) {
    facts.productOption = ProductOption{ProductOption::State::kRead, type};
    CHECK(DescribeSystem(facts) ==
          WString(L"Microsoft Windows NT ") + product + L"4.0 (4.0.1381 service pack 5)");
  }
}

}  // namespace kelvo
