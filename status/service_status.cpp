#include "status/service_status.h"

#include <setupapi.h>

#include <cwchar>
#include <vector>

#include "lib/platform/system_library.h"
#include "lib/string/format_text.h"
#include "tool/handsfree_service.h"

namespace kelvo {

namespace {

struct DeviceFunctions {
  OwnedModule library = LoadSystemLibrary(L"setupapi.dll");
  decltype(&SetupDiGetClassDevsW) getDevices =
      KELVO_FIND_FUNCTION(library.get(), SetupDiGetClassDevsW);
  decltype(&SetupDiEnumDeviceInfo) enumDevice =
      KELVO_FIND_FUNCTION(library.get(), SetupDiEnumDeviceInfo);
  decltype(&SetupDiGetDeviceRegistryPropertyW) getProperty =
      KELVO_FIND_FUNCTION(library.get(), SetupDiGetDeviceRegistryPropertyW);
  decltype(&SetupDiDestroyDeviceInfoList) destroyDevices =
      KELVO_FIND_FUNCTION(library.get(), SetupDiDestroyDeviceInfoList);

  explicit operator bool() const {
    return getDevices != nullptr && enumDevice != nullptr && getProperty != nullptr &&
           destroyDevices != nullptr;
  }
};

WString ServiceHardwareId() {
  const GUID& id = HandsfreeServiceClassGuid;
  return FormatText(L"BTHENUM\\{%08lX-%04hX-%04hX-%02X%02X-%02X%02X%02X%02X%02X%02X}", id.Data1,
                    id.Data2, id.Data3, id.Data4[0], id.Data4[1], id.Data4[2], id.Data4[3],
                    id.Data4[4], id.Data4[5], id.Data4[6], id.Data4[7]);
}

// Empty for a device that has none.
std::vector<wchar_t> ReadHardwareIds(const DeviceFunctions& functions, HDEVINFO devices,
                                     SP_DEVINFO_DATA& device) {
  DWORD size = 0;
  functions.getProperty(devices, &device, SPDRP_HARDWAREID, nullptr, nullptr, 0, &size);
  // The list's end is there even when the driver forgot it.
  std::vector<wchar_t> ids((size / sizeof(wchar_t)) + 2);
  if (functions.getProperty(devices, &device, SPDRP_HARDWAREID, nullptr,
                            reinterpret_cast<BYTE*>(ids.data()), size, nullptr) == FALSE) {
    ids.assign(2, L'\0');
  }
  return ids;
}

ServiceDevice FindServiceDevice(const DeviceFunctions& functions, HDEVINFO devices) {
  SP_DEVINFO_DATA device{};
  device.cbSize = sizeof(device);
  for (DWORD i = 0; functions.enumDevice(devices, i, &device) != FALSE; ++i) {
    if (IsServiceDevice(ReadHardwareIds(functions, devices, device).data())) {
      return {ERROR_SUCCESS, true};
    }
  }
  const DWORD error = GetLastError();
  return {error == ERROR_NO_MORE_ITEMS ? ERROR_SUCCESS : error, false};
}

}  // namespace

ServiceDevice QueryServiceDevice() {
  const DeviceFunctions functions;
  if (!functions) {
    return {GetLastError(), false};
  }
  HDEVINFO const devices =
      functions.getDevices(nullptr, L"BTHENUM", nullptr, DIGCF_ALLCLASSES | DIGCF_PRESENT);
  if (devices == INVALID_HANDLE_VALUE) {
    // What Windows says where no Bluetooth bus has ever been enumerated.
    const DWORD error = GetLastError();
    return {error == ERROR_INVALID_DATA ? ERROR_SUCCESS : error, false};
  }
  const ServiceDevice found = FindServiceDevice(functions, devices);
  functions.destroyDevices(devices);
  return found;
}

bool IsServiceDevice(const wchar_t* hardwareIds) {
  const WString wanted = ServiceHardwareId();
  for (const wchar_t* id = hardwareIds; *id != L'\0'; id += std::wcslen(id) + 1) {
    if (_wcsnicmp(id, wanted.c_str(), wanted.length()) == 0) {
      return true;
    }
  }
  return false;
}

DWORD QueryBluetoothLibrary() {
  // As the tool loads it, with the search for libraries narrowed.
  const OwnedModule library(LoadLibraryW(L"bthprops.cpl"));
  return library ? ERROR_SUCCESS : GetLastError();
}

Item DescribeService(const std::optional<ServiceDevice>& device, DWORD libraryError) {
  constexpr const char* kKind = "service";
  const bool hasLibrary = libraryError == ERROR_SUCCESS;
  const Detail library{"bluetooth_library", hasLibrary,
                       hasLibrary
                           ? WString(L"bthprops.cpl can be loaded")
                           : L"bthprops.cpl cannot be loaded: " + DescribeError(libraryError)};
  if (!device) {
    return {kKind,
            State::kTold,
            {},
            {library, {"device", L"not looked for", L"its device is looked for with --service"}}};
  }
  if (device->error != ERROR_SUCCESS) {
    Item item = UnknownItem(kKind, {}, device->error);
    item.details.push_back(library);
    return item;
  }
  return {kKind, device->isThere ? State::kPresent : State::kAbsent, {}, {library}};
}

}  // namespace kelvo
