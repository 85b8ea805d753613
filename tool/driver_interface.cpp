#include "tool/driver_interface.h"

#include "lib/paths/file_exists.h"
#include "lib/sysinfo/system_directories.h"
#include "tool/console_report.h"

namespace kelvo {

namespace {

constexpr const wchar_t* kLibraryName = L"difxapi.dll";

// The program's own folder, with its last backslash; empty when it is unknown.
WString ProgramDirectory() {
  constexpr DWORD kMaxPathLength = 0x8000;
  WString path(kMaxPathLength, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), kMaxPathLength));
  path.resize(path.rfind(L"\\") + 1);
  return path;
}

}  // namespace

WString DriverInterfacePath() {
  const WString ownCopy = ProgramDirectory() + kLibraryName;
  return FileExists(ownCopy.c_str()) ? ownCopy : WString(GetSystemDirectoryPath()) + kLibraryName;
}

bool BindDriverInterface(DriverInterface& driver) {
  driver.library.reset(LoadLibraryW(DriverInterfacePath().c_str()));
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
