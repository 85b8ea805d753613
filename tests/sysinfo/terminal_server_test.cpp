#include "lib/sysinfo/terminal_server.h"

#include <tuple>

#include "lib/registry/registry_value.h"
#include "tests/support/catch.h"
#include "tests/support/replaced_import.h"
#include "tests/support/scratch_key.h"

namespace kelvo {

TEST_CASE("a product suite is found in its list, a terminal server by what its Windows offers") {
  const test::StandInKey machine(HKEY_LOCAL_MACHINE);
  const std::tuple<DWORD, const wchar_t*, DWORD, bool> lists[] = {
      {REG_SZ, L"Terminal Server\0", 34, false},
      {REG_MULTI_SZ, L"A\0terminal Server\0", 38, false},
      {REG_MULTI_SZ, L"A\0\0Terminal Server\0", 40, false},
      {REG_MULTI_SZ, L"A\0Terminal Server!", 34, true},  // no terminator, and none behind
      {REG_MULTI_SZ, L"A\0Terminal Server!", 33, true},  // nor a last byte
  };
  for (const auto& [type, data, size, found] : lists) {
    WriteRegistryValue(HKEY_LOCAL_MACHINE, L"System\\CurrentControlSet\\Control\\ProductOptions",
                       L"ProductSuite", type, data, size);
    CHECK(IsProductSuiteInstalled(L"Terminal Server") == found);
  }
  const auto verify = +[](OSVERSIONINFOEXA* record, DWORD type, DWORDLONG mask) -> BOOL {
    return record->wSuiteMask == 0x10 && type == 0x40 && mask == VerSetConditionMask(0, 0x40, 6);
  };
  const std::tuple<DWORD, const char*, bool> releases[] = {{0xC0000A04, "", false},  // Windows 98
                                                           {4, "VerifyVersionInfoA", true},
                                                           {5, "", true},
                                                           {5, "VerifyVersionInfoA", false},
                                                           {5, "VerSetConditionMask", false}};
  for (const auto& [release, missing, answer] : releases) {
    const auto version = KELVO_REPLACE_IMPORT(GetVersion, [&](auto) { return release; });
    const test::ReplacedExport present("VerifyVersionInfoA", reinterpret_cast<void*>(verify));
    const test::ReplacedExport absent(missing, nullptr);
    CHECK(IsWinNTTerminalServer() == answer);
  }
}

}  // namespace kelvo
