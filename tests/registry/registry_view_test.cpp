#include "lib/registry/registry_view.h"

#include "lib/registry/mui_cache_key.h"
#include "tests/support/testing.h"

TEST_CASE("EnableRegistryReflection: detects failures; GetRegistryViewAccess: returns a flag") {
  const auto succeed = +[](HKEY key) { return key == HKEY_USERS ? 0L : 6L; };
  const auto fail = +[](HKEY) { return 5L; };
  for (const auto function : {succeed, fail, decltype(fail){}}) {
    const ReplacedExport enable("RegEnableReflectionKey", succeed);
    const ReplacedExport disable("RegDisableReflectionKey", function);
    CHECK(EnableRegistryReflection(HKEY_USERS, false) == (function == succeed));
    CHECK_BOTH(EnableRegistryReflection(HKEY_USERS, true),
               !EnableRegistryReflection(nullptr, true));
  }
  CHECK_BOTH(GetRegistryViewAccess(1) == 0x200, GetRegistryViewAccess(2) == 0x100);
  CHECK_BOTH(GetRegistryViewAccess(0) == 0, GetRegistryViewAccess(3) == 0);
}

TEST_CASE("GetMuiCacheKeyName: one name since Vista, another on 5.1 and 5.2, none before") {
  const std::tuple<DWORD, DWORD, WString> rows[] = {
      {6, 0, L"Software\\Classes\\Local Settings\\Software\\Microsoft\\Windows\\Shell\\MuiCache"},
      {5, 2, L"Software\\Microsoft\\Windows\\ShellNoRoam\\MUICache"},
      {5, 0, L""}};
  for (const auto& [major, minor, name] : rows) {
    const auto windows = PretendWindows(2, major, minor);
    CHECK(GetMuiCacheKeyName() == name);
  }
}
