#pragma once

#include <vector>

#include "lib/string/wstring.h"
#include "status/item.h"

namespace kelvo {

// Reads the list of dependent applications (ReadApplicationList in tool/dependent_applications.h).
// Never creates the registry key that contains the list.
//   - Returns one item for each of `names`. The item is present when the list contains the name,
//     regardless of letter case (IsSameApplication).
//   - If `names` is empty, returns one item for each application in the list. If the list is empty,
//     too, returns a single absent item.
//   - Each item has the detail "list". This detail says whether the list exists, and whether the
//     list's type or size makes sorrel.exe treat the list as empty.
//   - When the list's key or value exists but cannot be opened or queried, every item is unknown
//     and has the details of the error (UnknownItem) instead of the detail "list".
std::vector<Item> QueryApplications(const std::vector<WString>& names);

}  // namespace kelvo
