#pragma once

#include <vector>

#include "lib/string/wstring.h"
#include "status/item.h"

namespace kelvo {

// Reads the list of dependent applications (ReadApplicationList in tool/dependent_applications.h)
// without creating its key. Returns an item for each of `names`: present when the list contains the
// name, regardless of letter case (IsSameApplication). If `names` is empty, returns an item for
// each application in the list, or a single absent item for an empty list. A detail of each item
// describes the list: whether the list exists, and whether its type or size makes sorrel.exe treat
// it as empty. When the list's key or value exists but cannot be opened or queried, every item is
// unknown and has the error instead of that detail.
std::vector<Item> QueryApplications(const std::vector<WString>& names);

}  // namespace kelvo
