#pragma once

#include <windows.h>

#include <optional>

#include "lib/string/wstring.h"
#include "status/item.h"

namespace kelvo {

// Whether the service's device node is there; an error when that could not be looked at.
struct ServiceDevice {
  DWORD error = ERROR_SUCCESS;
  bool isThere = false;
};

// Looks through the present devices that the Bluetooth bus enumerates (SetupDiGetClassDevsW with
// "BTHENUM", all classes; setupapi.dll is loaded for that) for the service's hardware id.
ServiceDevice QueryServiceDevice();

// Whether one of a device's hardware ids, each ending in a NUL and the last one in two, is that of
// the hands-free service: "BTHENUM\", its class identifier in braces, and whatever follows,
// regardless of case.
bool IsServiceDevice(const wchar_t* hardwareIds);

// 0 when "bthprops.cpl" can be loaded, otherwise the error of loading it.
DWORD QueryBluetoothLibrary();

// Without a `device`, that was not looked for, tells only of the library.
Item DescribeService(const std::optional<ServiceDevice>& device, DWORD libraryError);

}  // namespace kelvo
