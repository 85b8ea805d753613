#pragma once

#include "status/item.h"

namespace kelvo {

// Whether QueryService searches the Bluetooth bus for the service's device node.
enum class DeviceSearch { kNone, kBluetoothBus };

// Returns the item for the hands-free service. The item reports whether "bthprops.cpl" can be
// loaded (as data, so that none of its code runs). With kBluetoothBus, the item also reports
// whether the Bluetooth bus has a device node for the service. To search the bus, QueryService
// loads setupapi.dll. It frees setupapi.dll after the search.
//   - The search finds a device node only if it is present and one of its hardware ids begins with
//     "BTHENUM\{CLASS}", where CLASS is HandsfreeServiceClassGuid (tool/handsfree_service.h).
//   - The bus also has device nodes for services of paired remote hardware, such as a phone. The
//     instance id of each such node contains the Bluetooth address of the remote hardware. The
//     search therefore ignores a node whose instance id contains an address other than zero. If the
//     address is zero, the search does not ignore the node.
//   - If a node's instance id contains no address, the search ignores the node when one of its
//     hardware ids continues after "BTHENUM\{CLASS}" with "_VID", or with "_LOCALMFG&" and a number
//     other than 0000. Such hardware ids also indicate remote hardware.
//   - The nodes for other local services (incoming serial ports) have "_LOCALMFG&0000" and an
//     address of zero in their ids. It is not known which ids the node for the hands-free service
//     has on a computer with a real radio.
//   - The bus has no node for the service while the radio is off or unplugged, and perhaps for a
//     moment after the service is registered. The state kAbsent therefore does not prove that the
//     service is not registered.
Item QueryService(DeviceSearch search);

}  // namespace kelvo
