#pragma once

#include <vector>

#include "lib/string/wstring.h"
#include "status/item.h"

namespace kelvo {

// Reads the list of dependent applications (ReadApplicationList in tool/dependent_applications.h)
// without creating its key. Returns an item for each of `names`: present when the list contains it,
// as IsSameApplication compares names. If `names` is empty, returns an item for each application in
// the list, or a single absent item for an empty list. A detail describes the list: whether it
// exists, and whether sorrel.exe treats it as empty because it cannot read it. All items are
// unknown when the key or the value cannot be read.
std::vector<Item> QueryApplications(const std::vector<WString>& names);

}  // namespace kelvo
