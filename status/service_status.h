#pragma once

#include "status/item.h"

namespace kelvo {

// Whether to search for a device, and where.
enum class DeviceSearch { kNone, kBluetoothBus };

// Returns the item for the service. It reports whether Windows has "bthprops.cpl", which is opened
// as data, so that none of its code runs. If `search` asks for it, the item also reports whether
// the Bluetooth bus has a device for the service; this loads setupapi.dll and frees it.
//   - A device counts when it is present, one of its hardware ids begins with "BTHENUM\" and the
//     service's class identifier in braces, and nothing shows that it belongs to a paired remote
//     device.
//     If its instance id contains an address, the address must be zero. Without an address, no such
//     hardware id may continue with "_VID", or with "_LOCALMFG&" and a number other than 0000.
//   - It is certain that the bus also makes devices for services of remote devices, and that their
//     instance ids have the remote device's address. The ids of the service's own device were never
//     seen on a radio. Other local services, the incoming serial ports, have "_LOCALMFG&0000" and
//     an address of zero.
//   - The devices disappear with the radio, and may appear a moment after the registration. While
//     the radio is off or unplugged, "absent" proves nothing.
Item QueryService(DeviceSearch search);

}  // namespace kelvo
