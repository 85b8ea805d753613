#pragma once

#include <windows.h>

#include <optional>

#include "lib/string/wstring.h"
#include "status/item.h"

namespace kelvo {

// Whether the service's device node exists; `error` says why that is unknown.
struct ServiceDevice {
  DWORD error = ERROR_SUCCESS;
  bool isThere = false;
};

// Looks through the present devices that the Bluetooth bus enumerates (SetupDiGetClassDevsW with
// "BTHENUM", all classes; setupapi.dll is loaded for that) for the service's hardware id.
ServiceDevice QueryServiceDevice();

// Returns whether one of a device's hardware ids is that of the hands-free service: "BTHENUM\", its
// class identifier in braces, and whatever follows, in any letter case. Each id ends in a NUL, the
// last one in two.
bool IsServiceDevice(const wchar_t* hardwareIds);

// Returns 0 when "bthprops.cpl" can be loaded, otherwise the error code of loading it.
DWORD QueryBluetoothLibrary();

// Returns the item for the service. Without a `device`, which was not looked for then, it tells
// only about the library.
Item DescribeService(const std::optional<ServiceDevice>& device, DWORD libraryError);

}  // namespace kelvo
