#pragma once

#include <string>
#include <vector>

#include "status/item.h"

namespace kelvo {

// Returns the items for a person, in UTF-8: one line for each, with its state, kind, name and
// details in columns. Characters that would act on a terminal are made visible.
std::string TextReport(const std::vector<Item>& items);

}  // namespace kelvo
