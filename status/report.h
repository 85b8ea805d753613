#pragma once

#include <string>
#include <vector>

#include "status/item.h"

namespace kelvo {

// Returns a report for people, in UTF-8. The report has one line for each item: the item's state
// and kind in columns, then its name and details. Characters that would control a terminal are
// replaced with visible codes (ToVisibleUtf8).
std::string TextReport(const std::vector<Item>& items);

// Returns a report for scripts: one JSON object. The report is in ASCII, with \u escapes for all
// other characters, so that a shell can read the report in any code page. The object has:
//   - "schema", a number that changes when a key or a possible value is removed or changes its
//     meaning, but not when a later version of the program adds a key
//   - "version", the version of the program
//   - "state", the state of the worst item
//   - "items", an array of objects with "item" (the kind), "state", "name" (null when it is empty)
//     and the details under their keys
// An unpaired surrogate is replaced with U+FFFD, which is escaped as \ufffd.
std::string JsonReport(const std::vector<Item>& items);

}  // namespace kelvo
