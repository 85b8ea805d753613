#pragma once

#include <windows.h>

namespace kelvo {

// The class identifier of the hands-free service in the Bluetooth stack.
inline constexpr GUID HandsfreeServiceClassGuid = {
    0x3ABB9028, 0xBEAE, 0x4BF1, {0xAC, 0xD7, 0x5C, 0xD7, 0xD5, 0xE4, 0xE0, 0xCA}};

// Registers the hands-free service with the local Bluetooth stack, or unregisters it when `enable`
// is false, and reports the outcome in one line. Returns the result of
// BluetoothSetLocalServiceInfo, 0 when "bthprops.cpl" cannot be loaded, or the error code of
// GetProcAddress when the library does not export the function.
DWORD RegisterHandsfreeService(bool enable);

}  // namespace kelvo
