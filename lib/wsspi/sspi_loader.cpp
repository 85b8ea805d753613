#include "lib/wsspi/sspi_loader.h"

#include <windows.h>

#define SECURITY_WIN32
#include <security.h>

#include "lib/platform/module.h"
#include "lib/wsspi/sspi_exception.h"

namespace wsspi {

namespace {

// The file name and the line numbers that an SspiException reports. They are constants, not
// __FILE__ and __LINE__, so they stay the same when this file is edited.
constexpr const wchar_t* kFile = L"wsspi";
constexpr std::uint32_t kLineNoLibrary = 47;
constexpr std::uint32_t kLineNoEntryPoint = 59;
constexpr std::uint32_t kLineNoTable = 63;

HMODULE securityLibrary = nullptr;
PSecurityFunctionTableW functionTable = nullptr;

[[noreturn]] void Fail(std::uint32_t line, SspiErrorCode code) {
  // NOLINTNEXTLINE(misc-throw-by-value-catch-by-reference,cert-err*): callers catch a pointer
  throw new SspiException(kFile, line, code, 0);
}

}  // namespace

bool IsSspiInitialized() { return functionTable != nullptr; }

void SspiInitialize() {
  if (IsSspiInitialized()) {
    return;
  }
  securityLibrary = LoadLibraryW(L"security.dll");
  if (securityLibrary == nullptr) {
    Fail(kLineNoLibrary, ErrorNoLibrary);
  }
  auto* const initialize = KELVO_FIND_FUNCTION(securityLibrary, InitSecurityInterfaceW);
  if (initialize == nullptr) {
    Fail(kLineNoEntryPoint, ErrorNoSecurityInterface);
  }
  functionTable = initialize();
  if (functionTable == nullptr) {
    Fail(kLineNoTable, ErrorNoSecurityInterface);
  }
}

}  // namespace wsspi
