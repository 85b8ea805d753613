#pragma once

#include <windows.h>

namespace kelvo {

// The service class GUID of the hands-free service. RegisterHandsfreeService passes this GUID to
// BluetoothSetLocalServiceInfo to register the service with the Bluetooth stack.
inline constexpr GUID HandsfreeServiceClassGuid = {
    0x3ABB9028, 0xBEAE, 0x4BF1, {0xAC, 0xD7, 0x5C, 0xD7, 0xD5, 0xE4, 0xE0, 0xCA}};

// Registers the hands-free service with the local Bluetooth stack or, when `enable` is false,
// unregisters the service. Writes one line with the outcome to standard output. If the line ends
// with a system message, an empty line follows. When "bthprops.cpl" cannot be loaded, returns 0.
// When "bthprops.cpl" does not export BluetoothSetLocalServiceInfo, returns the error code of
// GetProcAddress. Otherwise returns the result of BluetoothSetLocalServiceInfo.
DWORD RegisterHandsfreeService(bool enable);

}  // namespace kelvo
