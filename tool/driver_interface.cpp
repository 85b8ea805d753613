#include "tool/driver_interface.h"

namespace kelvo {

bool BindDriverInterface(DriverInterface& driver) {
  // Not the current folder and not the path: what is found there runs with administrative rights.
  driver.library.reset(LoadLibraryExW(
      L"difxapi.dll", nullptr, LOAD_LIBRARY_SEARCH_APPLICATION_DIR | LOAD_LIBRARY_SEARCH_SYSTEM32));
  if (!driver.library) {
    return false;
  }
  driver.setLogCallback = KELVO_FIND_FUNCTION(driver.library.get(), SetDifxLogCallbackW);
  if (driver.setLogCallback == nullptr) {
    return false;
  }
  driver.installPackage = KELVO_FIND_FUNCTION(driver.library.get(), DriverPackageInstallW);
  return driver.installPackage != nullptr;
}

}  // namespace kelvo
