#pragma once

#include <string>
#include <vector>

#include "status/item.h"

namespace kelvo {

// The items for a script, as one JSON object in UTF-8: the number "schema", the program's
// "version", the "state" of the worst item, and the array "items". Each item is an object with
// "item", "state", "name" (null for none) and its details by their keys. Later versions may add
// keys; "schema" changes when one changes its meaning or goes. An unpaired surrogate is U+FFFD.
std::string JsonReport(const std::vector<Item>& items);

}  // namespace kelvo
