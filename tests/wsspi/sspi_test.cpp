#include <memory>

#include "lib/wsspi/sspi_exception.h"
#include "lib/wsspi/sspi_loader.h"
#include "tests/support/catch.h"
#include "tests/support/replaced_import.h"

namespace {

// The failure that SspiInitialize throws, or null when it throws none.
std::unique_ptr<wsspi::SspiException> Failure() {
  try {
    wsspi::SspiInitialize();
  } catch (wsspi::SspiException* failure) {
    return std::unique_ptr<wsspi::SspiException>(failure);
  }
  return nullptr;
}

void CheckFailure(std::int32_t code, std::uint32_t line) {
  const auto failure = Failure();
  REQUIRE(failure != nullptr);
  CHECK(failure->file == kelvo::WString(L"wsspi"));
  CHECK(failure->line == line);
  CHECK(failure->code == code);
  CHECK(failure->detail == 0);
  CHECK_FALSE(wsspi::IsSspiInitialized());
}

}  // namespace

// One case: what one step leaves in the process is what the next one starts from.
TEST_CASE("the interface is tried again after each failure and loaded once") {
  using kelvo::test::ReplacedExport;
  int loads = 0;
  bool missing = true;
  const auto load = KELVO_REPLACE_IMPORT(LoadLibraryW, [&](auto* original, LPCWSTR name) {
    ++loads;
    CHECK(std::wstring(name) == L"security.dll");
    return missing ? nullptr : original(name);
  });
  CHECK_FALSE(wsspi::IsSspiInitialized());
  CheckFailure(wsspi::ErrorNoLibrary, 47);
  missing = false;
  {
    const ReplacedExport none("InitSecurityInterfaceW", nullptr);
    CheckFailure(wsspi::ErrorNoSecurityInterface, 59);
  }
  {
    const ReplacedExport noTable("InitSecurityInterfaceW",
                                 reinterpret_cast<void*>(+[]() -> void* { return nullptr; }));
    CheckFailure(wsspi::ErrorNoSecurityInterface, 63);
  }
  CHECK(Failure() == nullptr);
  CHECK(wsspi::IsSspiInitialized());
  CHECK(Failure() == nullptr);
  CHECK(loads == 4);
}

TEST_CASE("a code is stored up to 16") {
  for (const auto& [given, stored] : {std::pair{13, 13}, {16, 16}, {17, 16}, {20, 16}, {-1, -1}}) {
    CHECK(wsspi::SspiException(L"file", 1, given, 2).code == stored);
  }
}
