#include "lib/registry/registry_view.h"

#include "tests/support/catch.h"
#include "tests/support/replaced_import.h"

namespace kelvo {

TEST_CASE("reflection is switched by the function for it, where Windows has it") {
  using Change = LONG WINAPI(HKEY);
  Change* const succeeds = [](HKEY key) { return key == HKEY_USERS ? 0L : 6L; };
  Change* const fails = [](HKEY) { return 5L; };
  const test::ReplacedExport enable("RegEnableReflectionKey", reinterpret_cast<void*>(succeeds));
  CHECK(EnableRegistryReflection(HKEY_USERS, true));
  CHECK_FALSE(EnableRegistryReflection(nullptr, true));
  for (Change* const disables : {succeeds, fails, static_cast<Change*>(nullptr)}) {
    const test::ReplacedExport disable("RegDisableReflectionKey",
                                       reinterpret_cast<void*>(disables));
    CHECK(EnableRegistryReflection(HKEY_USERS, false) == (disables == succeeds));
  }
}

TEST_CASE("each registry view has its access bit") {
  const REGSAM bits[] = {0, 0x200, 0x100, 0};
  for (int view = 0; view < 4; ++view) {
    CHECK(GetRegistryViewAccess(view) == bits[view]);
  }
}

}  // namespace kelvo
