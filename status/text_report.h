#pragma once

#include <string>
#include <vector>

#include "status/item.h"

namespace kelvo {

// The items for a person, in UTF-8: a line each, with its state, kind, name and details in columns
// and characters that act on a terminal made visible.
std::string TextReport(const std::vector<Item>& items);

}  // namespace kelvo
