#include "tool/driver_interface.h"

#include "tool/console_report.h"
#include "tool/library_search.h"

namespace kelvo {

DWORD BindDriverInterface(DriverInterface& driver) {
  const WString path = LibraryPath(L"difxapi.dll");
  driver.library.reset(LoadLibraryW(path.c_str()));
  if (!driver.library) {
    return GetLastError();
  }
  driver.setLogCallback = KELVO_FIND_FUNCTION(driver.library.get(), SetDifxLogCallbackW);
  if (driver.setLogCallback == nullptr) {
    return GetLastError();
  }
  driver.installPackage = KELVO_FIND_FUNCTION(driver.library.get(), DriverPackageInstallW);
  return driver.installPackage == nullptr ? GetLastError() : ERROR_SUCCESS;
}

void CALLBACK DifxLogCallback(DIFXAPI_LOG event, DWORD error, PCWSTR description,
                              PVOID /*context*/) noexcept {
  try {
    Report(L"INFO: %d - %08lX - %s\n", event, error, description != nullptr ? description : L"");
  } catch (...) {
    // Drops the line: an exception that left this noexcept function would end the process.
    return;
  }
}

}  // namespace kelvo
