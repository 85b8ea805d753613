#pragma once

#include "status/item.h"

namespace kelvo {

// Whether to search for a device, and where.
enum class DeviceSearch { kNone, kBluetoothBus };

// Returns the item for the service: whether Windows has "bthprops.cpl", which is opened as data, so
// that nothing in it runs, and, when asked for, whether the Bluetooth bus has a device for the
// service. setupapi.dll is loaded for the devices and freed.
//   - A device counts when it is present, one of its hardware ids begins with "BTHENUM\" and the
//     service's class identifier in braces, and it is not certainly that of a paired remote device:
//     its instance id ends in an address that is zero or, where it has no address, no hardware id
//     continues with "_VID" or with "_LOCALMFG&" and a number that is not 0000.
//   - Certain: the bus makes such nodes for services of remote devices too, and theirs have the
//     remote device's address. Not seen on a radio: the ids of the service's own node. Incoming
//     serial ports, other local services, have "_LOCALMFG&0000" and an address of zero.
//   - The nodes disappear with the radio, and may appear a moment after the registration: "absent"
//   is no
//     proof while the radio is off or unplugged.
Item QueryService(DeviceSearch search);

}  // namespace kelvo
