#include "lib/sysinfo/terminal_server.h"

#include "tests/support/testing.h"

TEST_CASE("IsProductSuiteInstalled: finds a suite in the list") {
  const StandInKey machine(HKEY_LOCAL_MACHINE);
  // The last two sizes exclude "!" and the NUL after it; 33 also excludes half of the last "r".
  const std::tuple<DWORD, const wchar_t*, DWORD, bool> lists[] = {
      {REG_SZ, L"Terminal Server\0", 34, false},
      {REG_MULTI_SZ, L"A\0terminal Server\0", 38, false},
      {REG_MULTI_SZ, L"A\0\0Terminal Server\0", 40, false},
      {REG_MULTI_SZ, L"A\0Terminal Server!", 34, true},
      {REG_MULTI_SZ, L"A\0Terminal Server!", 33, true}};
  // Simulates a list that became longer after its size was queried.
  REPLACE(RegQueryValueExW, [](auto original, auto... arguments) {
    const LSTATUS status = original(arguments...);
    *std::get<5>(std::tuple(arguments...)) -=
        std::get<4>(std::tuple(arguments...)) == nullptr ? 8 : 0;
    return status;
  });
  for (const auto& [type, data, size, isFound] : lists) {
    RegSetKeyValueW(machine.key.get(), L"System\\CurrentControlSet\\Control\\ProductOptions",
                    L"ProductSuite", type, data, size);
    CHECK(IsProductSuiteInstalled(L"Terminal Server") == isFound);
    CHECK_FALSE(IsProductSuiteInstalled(nullptr));
  }
}
