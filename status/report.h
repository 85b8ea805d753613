#pragma once

#include <string>
#include <vector>

#include "status/item.h"

namespace kelvo {

// Returns the items as text for a person, in UTF-8: one line for each, with its state, kind, name
// and details in columns. Characters that would act on a terminal are made visible.
std::string TextReport(const std::vector<Item>& items);

// Returns the items for a script, as one JSON object in ASCII, which every shell reads whatever its
// code page: the number "schema", the program's "version", the "state" of the worst item, and the
// array "items". Each item is an object with "item", "state", "name" (null when there is none) and
// its details by their keys. Later versions may add keys; "schema" changes when a key changes its
// meaning or is removed. An unpaired surrogate becomes U+FFFD.
std::string JsonReport(const std::vector<Item>& items);

}  // namespace kelvo
