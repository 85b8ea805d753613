#include "status/service_status.h"

#include <windows.h>

#include <cfgmgr32.h>
#include <setupapi.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cwchar>
#include <optional>
#include <string_view>
#include <vector>

#include "lib/platform/system_library.h"
#include "lib/string/format_text.h"
#include "tool/handsfree_service.h"
#include "tool/library_search.h"

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
  decltype(&SetupDiGetDeviceInstanceIdW) getInstanceId =
      KELVO_FIND_FUNCTION(library.get(), SetupDiGetDeviceInstanceIdW);
  decltype(&SetupDiDestroyDeviceInfoList) destroyDevices =
      KELVO_FIND_FUNCTION(library.get(), SetupDiDestroyDeviceInfoList);

  explicit operator bool() const {
    return getDevices != nullptr && enumDevice != nullptr && getProperty != nullptr &&
           getInstanceId != nullptr && destroyDevices != nullptr;
  }
};

WString ServiceHardwareId() {
  const GUID& id = HandsfreeServiceClassGuid;
  return FormatText(L"BTHENUM\\{%08lX-%04hX-%04hX-%02X%02X-%02X%02X%02X%02X%02X%02X}", id.Data1,
                    id.Data2, id.Data3, id.Data4[0], id.Data4[1], id.Data4[2], id.Data4[3],
                    id.Data4[4], id.Data4[5], id.Data4[6], id.Data4[7]);
}

// Returns the hardware ids of a device as a list of NUL-terminated strings. An empty string ends
// the list. If the device has no hardware ids, or if they cannot be read, the list is empty.
std::vector<wchar_t> ReadHardwareIds(const DeviceFunctions& functions, HDEVINFO devices,
                                     SP_DEVINFO_DATA& device) {
  DWORD size = 0;
  functions.getProperty(devices, &device, SPDRP_HARDWAREID, nullptr, nullptr, 0, &size);
  // Leaves at least two NULs after the stored data. They end the list even if the stored list has
  // no terminator or ends in the middle of a character.
  std::vector<wchar_t> ids((size / sizeof(wchar_t)) + 3);
  if (functions.getProperty(devices, &device, SPDRP_HARDWAREID, nullptr,
                            reinterpret_cast<BYTE*>(ids.data()), size, nullptr) == FALSE) {
    ids.assign(2, L'\0');
  }
  return ids;
}

bool StartsWith(const wchar_t* text, std::wstring_view start) {
  return _wcsnicmp(text, start.data(), start.length()) == 0;
}

// For each hardware id that begins with ServiceHardwareId(), returns the rest of the id.
std::vector<WString> ServiceIdSuffixes(const std::vector<wchar_t>& hardwareIds) {
  const WString wanted = ServiceHardwareId();
  std::vector<WString> suffixes;
  for (const wchar_t* id = hardwareIds.data(); *id != L'\0'; id += std::wcslen(id) + 1) {
    if (StartsWith(id, wanted)) {
      suffixes.emplace_back(id + wanted.length());
    }
  }
  return suffixes;
}

bool IsRemoteSuffix(const WString& suffix) {
  constexpr std::wstring_view kMaker = L"_LOCALMFG&";
  return StartsWith(suffix.c_str(), L"_VID") ||
         (StartsWith(suffix.c_str(), kMaker) &&
          !StartsWith(suffix.c_str() + kMaker.length(), L"0000"));
}

// Returns the Bluetooth address in a device's instance id. In "...&0&001122334455_C00000000", the
// address is the 12 digits before "_". Returns std::nullopt when the id has no address.
std::optional<std::uint64_t> AddressOf(const DeviceFunctions& functions, HDEVINFO devices,
                                       SP_DEVINFO_DATA& device) {
  constexpr std::ptrdiff_t kDigits = 12;
  std::array<wchar_t, MAX_DEVICE_ID_LEN> id{};
  functions.getInstanceId(devices, &device, id.data(), MAX_DEVICE_ID_LEN, nullptr);
  const wchar_t* const separator = std::wcsrchr(id.data(), L'&');
  if (separator == nullptr) {
    return std::nullopt;
  }
  wchar_t* end = nullptr;
  const std::uint64_t address = std::wcstoull(separator + 1, &end, 16);
  return end - (separator + 1) == kDigits ? std::optional(address) : std::nullopt;
}

bool IsServiceDevice(const DeviceFunctions& functions, HDEVINFO devices, SP_DEVINFO_DATA& device) {
  const std::vector<WString> suffixes =
      ServiceIdSuffixes(ReadHardwareIds(functions, devices, device));
  if (suffixes.empty()) {
    return false;
  }
  if (const auto address = AddressOf(functions, devices, device)) {
    return *address == 0;
  }
  return std::none_of(suffixes.begin(), suffixes.end(), IsRemoteSuffix);
}

DWORD FindServiceDevice(const DeviceFunctions& functions, HDEVINFO devices, bool& isThere) {
  SP_DEVINFO_DATA device{};
  device.cbSize = sizeof(device);
  for (DWORD i = 0; functions.enumDevice(devices, i, &device) != FALSE; ++i) {
    if (IsServiceDevice(functions, devices, device)) {
      isThere = true;
      return ERROR_SUCCESS;
    }
  }
  const DWORD error = GetLastError();
  return error == ERROR_NO_MORE_ITEMS ? ERROR_SUCCESS : error;
}

DWORD QueryServiceDevice(bool& isThere) {
  const DeviceFunctions functions;
  if (!functions) {
    return GetLastError();
  }
  HDEVINFO const devices =
      functions.getDevices(nullptr, L"BTHENUM", nullptr, DIGCF_ALLCLASSES | DIGCF_PRESENT);
  if (devices == INVALID_HANDLE_VALUE) {
    // ERROR_INVALID_DATA means that the enumerator BTHENUM has never reported a device on this
    // computer. This is not an error: the service's device is absent.
    const DWORD error = GetLastError();
    return error == ERROR_INVALID_DATA ? ERROR_SUCCESS : error;
  }
  const DWORD error = FindServiceDevice(functions, devices, isThere);
  functions.destroyDevices(devices);
  return error;
}

void AddLibrary(Item& item) {
  constexpr const char* kKey = "bluetooth_library";
  // Loads the library as data, so that none of its code runs. Passes the full path, because
  // Wine ignores SetDefaultDllDirectories when it searches for a library that is loaded as data.
  const WString path = LibraryPath(L"bthprops.cpl");
  const OwnedModule library(LoadLibraryExW(
      path.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE | LOAD_LIBRARY_AS_IMAGE_RESOURCE));
  if (library) {
    item.details.push_back({kKey, true, L"bthprops.cpl is there"});
    return;
  }
  const DWORD error = GetLastError();
  item.details.push_back({kKey, false, {}});
  AddError(item, "bluetooth_library_error", L"no bthprops.cpl: ", error);
}

}  // namespace

Item QueryService(DeviceSearch search) {
  Item item{"service", State::kInfo, {}, {}};
  if (search == DeviceSearch::kNone) {
    AddLibrary(item);
    item.details.push_back({{}, {}, L"use --service to search for the service's device"});
    return item;
  }
  bool isThere = false;
  if (const DWORD error = QueryServiceDevice(isThere)) {
    item = UnknownItem(item.kind, {}, error);
  } else {
    item.state = isThere ? State::kPresent : State::kAbsent;
    item.details.push_back(
        {"device", isThere,
         isThere ? L"the service has a device node" : L"no device node for the service"});
  }
  AddLibrary(item);
  return item;
}

}  // namespace kelvo
