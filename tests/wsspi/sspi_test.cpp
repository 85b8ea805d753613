#include "lib/wsspi/sspi_exception.h"
#include "lib/wsspi/sspi_loader.h"
#include "tests/support/testing.h"

// This is one test case, because each step depends on the state that the previous step leaves.
TEST_CASE("SspiInitialize: tries again after a failure, but not after a success") {
  int loads = 0;
  bool isMissing = true;
  REPLACE(LoadLibraryW, [&](auto original, LPCWSTR name) {
    ++loads;
    CHECK(name == std::wstring(L"security.dll"));
    return isMissing ? nullptr : original(name);
  });
  const auto fails = [](std::uint32_t line, std::int32_t code) {
    CHECK_FALSE(wsspi::IsSspiInitialized());
    try {
      wsspi::SspiInitialize();
    } catch (wsspi::SspiException* thrown) {
      const std::unique_ptr<wsspi::SspiException> failure(thrown);
      CHECK_BOTH(failure->file == L"wsspi", failure->detail == 0);
      return failure->line == line && failure->code == code;
    }
    return false;
  };
  CHECK(fails(47, 2));
  isMissing = false;
  const auto giveNothing = +[]() -> void* { return nullptr; };
  for (const auto& [function, line] :
       {std::pair{decltype(giveNothing){}, 59U}, {giveNothing, 63U}}) {
    const ReplacedExport initialize("InitSecurityInterfaceW", function);
    CHECK(fails(line, 5));
  }
  wsspi::SspiInitialize();
  wsspi::SspiInitialize();
  CHECK_BOTH(wsspi::IsSspiInitialized(), loads == 4);
  CHECK(wsspi::SspiException(L"", 1, 16, 2).code == 16);
  CHECK(wsspi::SspiException(L"", 1, 17, 2).code == 16);
}
