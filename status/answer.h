#pragma once

#include <vector>

#include "status/command_line.h"
#include "status/item.h"

namespace kelvo {

// Looks at what `questions` ask for, or at everything when they ask for nothing in particular, and
// changes nothing. Returns an item for each thing in the order application, publisher,
// intermediate, driver package, service, interface, system; several of a kind in the order of the
// questions. Throws std::bad_alloc when memory runs out.
std::vector<Item> Answer(const Questions& questions);

}  // namespace kelvo
