#pragma once

#include <windows.h>

namespace kelvo {

// Advertises the hands-free service with the local Bluetooth stack, or withdraws it, and reports
// the outcome in one line. Returns what BluetoothSetLocalServiceInfo returned, 0 when the machine
// has no "bthprops.cpl" to load, and the lookup's error code when that library has no such
// function.
DWORD RegisterHandsfreeService(bool enable);

}  // namespace kelvo
