#pragma once

#include <vector>

#include "lib/string/wstring.h"
#include "status/item.h"

namespace kelvo {

// Reads the list of dependent applications (ReadApplicationList in tool/dependent_applications.h).
// Never creates the registry key that contains the list.
//   - Returns one item for each of `names`. The item's state is kPresent when the list contains the
//     name (IsSameApplication). Otherwise, the state is kAbsent.
//   - If `names` is empty, returns one item for each application in the list. If the list is also
//     empty, returns a single item with the state kAbsent.
//   - Each item has the detail "list". This detail says whether the list exists, and whether the
//     list's type or size makes sorrel.exe treat the list as empty.
//   - When the list's key or value exists but cannot be opened or queried, every item has the state
//     kUnknown, and has the details of the error (UnknownItem) instead of the detail "list".
std::vector<Item> QueryApplications(const std::vector<WString>& names);

}  // namespace kelvo
