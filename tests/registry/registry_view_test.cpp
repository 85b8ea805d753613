#include "lib/registry/registry_view.h"

#include "tests/support/catch.h"
#include "tests/support/replaced_import.h"

namespace kelvo {

TEST_CASE("reflection is switched by the function for it, where Windows has it") {
  using Change = LONG WINAPI(HKEY);
  Change* const succeeds = [](HKEY key) { return key == HKEY_USERS ? 0L : 6L; };
  Change* const fails = [](HKEY) { return 5L; };
  struct Row {
    Change* enables;
    Change* disables;
    bool enabled;
    bool disabled;
  };
  const Row rows[] = {
      {succeeds, fails, true, false},
      {fails, succeeds, false, true},
      {nullptr, succeeds, false, true},
      {succeeds, nullptr, true, false},
  };
  for (const Row& row : rows) {
    const test::ReplacedExport enable("RegEnableReflectionKey",
                                      reinterpret_cast<void*>(row.enables));
    const test::ReplacedExport disable("RegDisableReflectionKey",
                                       reinterpret_cast<void*>(row.disables));
    CHECK(EnableRegistryReflection(HKEY_USERS, true) == row.enabled);
    CHECK(EnableRegistryReflection(HKEY_USERS, false) == row.disabled);
  }
}

TEST_CASE("each registry view has its access bit") {
  CHECK(GetRegistryViewAccess(1) == 0x200);
  CHECK(GetRegistryViewAccess(2) == 0x100);
  for (const int other : {-1, 0, 3}) {
    CHECK(GetRegistryViewAccess(other) == 0);
  }
}

}  // namespace kelvo
