#pragma once

#include "status/item.h"

namespace kelvo {

// Whether QueryService searches the Bluetooth bus for the service's device.
enum class DeviceSearch { kNone, kBluetoothBus };

// Returns the item for the hands-free service. The item reports whether "bthprops.cpl" can be
// loaded (as data, so that none of its code runs). With kBluetoothBus, the item also reports
// whether the Bluetooth bus has a device for the service; the search loads setupapi.dll and frees
// it.
//   - A device counts when it is present, one of its hardware ids begins with "BTHENUM\{CLASS}",
//     where CLASS is the service's class identifier, and nothing shows that the device belongs to a
//     paired remote device.
//     If the instance id contains a Bluetooth address, the address must be zero. If the instance
//     id contains no address, no hardware id may continue after "BTHENUM\{CLASS}" with "_VID", or
//     with "_LOCALMFG&" and a number other than 0000.
//   - It is certain that the bus also has devices for services of paired remote devices, and that
//     each of these bus devices has the remote device's address in its instance id. Which id
//     the device for the service itself has with a real radio is not known. The devices of other
//     local services (incoming serial ports) have "_LOCALMFG&0000" and an address of zero in their
//     ids.
//   - The bus has no device for the service while the radio is off or unplugged, and perhaps for a
//     moment after the service is registered. In both cases, "absent" proves nothing.
Item QueryService(DeviceSearch search);

}  // namespace kelvo
