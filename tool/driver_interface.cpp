#include "tool/driver_interface.h"

#include "lib/paths/file_exists.h"
#include "lib/paths/module_path.h"
#include "lib/sysinfo/system_directories.h"
#include "tool/console_report.h"

namespace kelvo {

namespace {

constexpr const wchar_t* kLibraryName = L"difxapi.dll";

// The copy beside the program; empty when the program's own path is unknown.
WString OwnCopyPath() {
  const WString program = ReadModulePath(nullptr);
  const std::size_t directoryLength = program.rfind(L"\\") + 1;
  return directoryLength > 0 ? program.substr(0, directoryLength) + kLibraryName : WString();
}

}  // namespace

WString DriverInterfacePath() {
  const WString ownCopy = OwnCopyPath();
  return FileExists(ownCopy.c_str()) ? ownCopy : WString(GetSystemDirectoryPath()) + kLibraryName;
}

DWORD BindDriverInterface(DriverInterface& driver) {
  const WString path = DriverInterfacePath();
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
    // An exception would unwind through the interface and cut the installation off.
    return;
  }
}

}  // namespace kelvo
