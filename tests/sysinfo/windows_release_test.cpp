#include "lib/sysinfo/windows_release.h"

#include "tests/support/testing.h"

TEST_CASE("each release counts as itself and as the earlier ones of its line") {
  bool (*const predicates[])() = {IsWin95,         IsWin98,         IsWinNT,        IsWin2000,
                                  IsWinXP,         IsWinVista,      IsWin7,         IsWin8,
                                  IsWinServer2003, IsWinServer2008, IsWinServer2012};
  const std::tuple<DWORD, DWORD, DWORD, std::string> rows[] = {
      {0, 0, 0, "00000000000"},  {1, 4, 0, "10000000000"}, {1, 4, 10, "01000000000"},
      {1, 4, 90, "01000000000"}, {2, 4, 0, "00100000000"}, {2, 5, 0, "00110000000"},
      {2, 5, 1, "00111000000"},  {2, 5, 2, "00111000100"}, {2, 6, 0, "00111100110"},
      {2, 6, 1, "00111110110"},  {2, 6, 2, "00111111111"}, {2, 7, 0, "00111111111"}};
  for (const auto& [platform, major, minor, expected] : rows) {
    const auto windows = PretendWindows(platform, major, minor);
    std::string answers;
    for (const auto& predicate : predicates) {
      answers += predicate() ? '1' : '0';
    }
    CHECK(answers == expected);
  }
}
