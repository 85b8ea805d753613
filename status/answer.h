#pragma once

#include <vector>

#include "status/command_line.h"
#include "status/item.h"

namespace kelvo {

// Looks at what is asked for, or at all that can be told, and changes nothing. The items come in
// the order application, publisher, intermediate, driver package, service, interface, system;
// those of one kind in the order in which they were asked for.
std::vector<Item> Answer(const Questions& questions);

}  // namespace kelvo
