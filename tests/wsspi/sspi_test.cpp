#include "lib/wsspi/sspi_exception.h"
#include "lib/wsspi/sspi_loader.h"

// One case: what one step leaves in the process is what the next one starts from.
TEST_CASE("the interface is tried again after each failure and loaded once") {
  using kelvo::test::ReplacedExport;
  int loads = 0;
  bool isMissing = true;
  KELVO_REPLACE(LoadLibraryW, [&](auto original, LPCWSTR name) {
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
      return failure->file == L"wsspi" && failure->line == line && failure->code == code &&
             failure->detail == 0;
    }
    return false;
  };
  CHECK(fails(47, 2));
  isMissing = false;
  CHECK((ReplacedExport("InitSecurityInterfaceW", nullptr), fails(59, 5)));
  CHECK(
      (ReplacedExport("InitSecurityInterfaceW", +[]() -> void* { return nullptr; }), fails(63, 5)));
  wsspi::SspiInitialize();
  wsspi::SspiInitialize();
  CHECK((wsspi::IsSspiInitialized() && loads == 4));
}

TEST_CASE("a code is stored up to 16") {
  for (const auto& [given, stored] : {std::pair{16, 16}, {17, 16}, {20, 16}, {-1, -1}}) {
    CHECK(wsspi::SspiException(L"file", 1, given, 2).code == stored);
  }
}
