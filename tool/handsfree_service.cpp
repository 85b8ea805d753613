#include "tool/handsfree_service.h"

#include <bluetoothapis.h>

#include "lib/platform/module.h"
#include "tool/console_report.h"

namespace kelvo {

namespace {

DWORD SetServiceInfo(HMODULE library, bool enable) {
  BLUETOOTH_LOCAL_SERVICE_INFO service{};
  service.Enabled = enable ? TRUE : FALSE;
  lstrcpynW(service.szName, L"Tessalin", BLUETOOTH_MAX_SERVICE_NAME_SIZE);
  auto* const setServiceInfo = KELVO_FIND_FUNCTION(library, BluetoothSetLocalServiceInfo);
  return setServiceInfo == nullptr
             ? GetLastError()
             : setServiceInfo(nullptr, &HandsfreeServiceClassGuid, 0, &service);
}

}  // namespace

DWORD RegisterHandsfreeService(bool enable) {
  const OwnedModule library(LoadLibraryW(L"bthprops.cpl"));
  if (!library) {
    // A missing bthprops.cpl does not count as a failure, so sorrel.exe exits with 0.
    Report(L"ERR: no Bluetooth available, bthprops.cpl missing\n");
    return ERROR_SUCCESS;
  }
  const DWORD error = SetServiceInfo(library.get(), enable);
  if (error == ERROR_SUCCESS) {
    Report(L"OK: BluetoothSetLocalServiceInfo\n");
  } else {
    Report(L"ERR: BluetoothSetLocalServiceInfo Error: %08lX - %s\n", error,
           FormatSystemMessage(error).c_str());
  }
  return error;
}

}  // namespace kelvo
