#pragma once

#include <string>
#include <vector>

#include "status/item.h"

namespace kelvo {

// Returns the items as text for a person, in UTF-8: one line for each item, with its state and kind
// in columns, then its name and details. Characters that would control a terminal are made visible
// (ToVisibleUtf8).
std::string TextReport(const std::vector<Item>& items);

// Returns the items for a script, as one JSON object. The text is ASCII, so that a shell can read
// it in any code page. The object has:
//   - "schema", a number that changes when a key is removed or changes its meaning, but not when a
//     later version of the program adds a key
//   - "version", the version of the program
//   - "state", the state of the worst item
//   - "items", an array of objects with "item" (the kind), "state", "name" (null when it is empty)
//     and the details under their keys
// An unpaired surrogate becomes U+FFFD.
std::string JsonReport(const std::vector<Item>& items);

}  // namespace kelvo
