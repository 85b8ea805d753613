#include "lib/sysinfo/terminal_server.h"

#include "lib/registry/registry_value.h"
#include "tests/support/testing.h"

TEST_CASE("a product suite is found in its list, a terminal server by what its Windows offers") {
  const StandInKey machine(HKEY_LOCAL_MACHINE);
  // The last two have no terminator, and none behind; the last one no last byte either.
  const std::tuple<DWORD, const wchar_t*, DWORD, bool> lists[] = {
      {REG_SZ, L"Terminal Server\0", 34, false},
      {REG_MULTI_SZ, L"A\0terminal Server\0", 38, false},
      {REG_MULTI_SZ, L"A\0\0Terminal Server\0", 40, false},
      {REG_MULTI_SZ, L"A\0Terminal Server!", 34, true},
      {REG_MULTI_SZ, L"A\0Terminal Server!", 33, true}};
  for (const auto& [type, data, size, found] : lists) {
    WriteRegistryValue(HKEY_LOCAL_MACHINE, L"System\\CurrentControlSet\\Control\\ProductOptions",
                       L"ProductSuite", type, data, size);
    CHECK(IsProductSuiteInstalled(L"Terminal Server") == found);
  }
  const ReplacedExport present(
      "VerifyVersionInfoA", +[](OSVERSIONINFOEXA* record, DWORD type, DWORDLONG mask) -> BOOL {
        return record->wSuiteMask == 0x10 && type == 0x40 && mask == VerSetConditionMask(0, 64, 6);
      });
  // GetVersion, a function that is missing, the answer.
  const std::tuple<DWORD, const char*, bool> releases[] = {{0xC0000A04, "", false},
                                                           {4, "VerSetConditionMask", true},
                                                           {5, "", true},
                                                           {5, "VerSetConditionMask", false}};
  for (const auto& [release, missing, answer] : releases) {
    REPLACE(GetVersion, [&](auto) { return release; });
    const ReplacedExport absent(missing, nullptr);
    CHECK(IsWinNTTerminalServer() == answer);
  }
}
