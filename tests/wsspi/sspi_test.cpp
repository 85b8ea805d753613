#include <memory>
#include <tuple>

#include "lib/wsspi/sspi_exception.h"
#include "lib/wsspi/sspi_loader.h"
#include "tests/support/catch.h"
#include "tests/support/replaced_import.h"

namespace {

using Failure = std::tuple<kelvo::WString, std::uint32_t, std::int32_t, std::uint32_t>;
const Failure kNone;

Failure FailureOfInitialize() {
  try {
    wsspi::SspiInitialize();
  } catch (wsspi::SspiException* thrown) {
    const std::unique_ptr<wsspi::SspiException> failure(thrown);
    CHECK_FALSE(wsspi::IsSspiInitialized());
    return {failure->file, failure->line, failure->code, failure->detail};
  }
  return kNone;
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
  CHECK(FailureOfInitialize() == Failure(L"wsspi", 47, 2, 0));
  missing = false;
  {
    const ReplacedExport none("InitSecurityInterfaceW", nullptr);
    CHECK(FailureOfInitialize() == Failure(L"wsspi", 59, 5, 0));
  }
  {
    const ReplacedExport noTable("InitSecurityInterfaceW",
                                 reinterpret_cast<void*>(+[]() -> void* { return nullptr; }));
    CHECK(FailureOfInitialize() == Failure(L"wsspi", 63, 5, 0));
  }
  CHECK(FailureOfInitialize() == kNone);
  CHECK(wsspi::IsSspiInitialized());
  CHECK(FailureOfInitialize() == kNone);
  CHECK(loads == 4);
}

TEST_CASE("a code is stored up to 16") {
  for (const auto& [given, stored] : {std::pair{13, 13}, {16, 16}, {17, 16}, {20, 16}, {-1, -1}}) {
    CHECK(wsspi::SspiException(L"file", 1, given, 2).code == stored);
  }
}
