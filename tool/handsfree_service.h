#pragma once

#include <windows.h>

namespace kelvo {

// The class identifier under which the service is known to the Bluetooth stack.
inline constexpr GUID HandsfreeServiceClassGuid = {
    0x3ABB9028, 0xBEAE, 0x4BF1, {0xAC, 0xD7, 0x5C, 0xD7, 0xD5, 0xE4, 0xE0, 0xCA}};

// Advertises the hands-free service with the local Bluetooth stack, or withdraws it, and reports
// the outcome in one line. Returns what BluetoothSetLocalServiceInfo returned, 0 when the machine
// has no "bthprops.cpl" to load, and the lookup's error code when that library has no such
// function.
DWORD RegisterHandsfreeService(bool enable);

}  // namespace kelvo
