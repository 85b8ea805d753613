#pragma once

#include <vector>

#include "lib/string/wstring.h"
#include "status/item.h"

namespace kelvo {

// Reads the list of dependent applications (ReadApplicationList in tool/dependent_applications.h)
// without creating its key, and returns an item for each of `names`, which is present when the tool
// would find it in the list to remove it. Without names, returns an item for each application in
// the list, or a single absent one when there is none. An absent item says so when the registry
// holds something that the tool cannot read and treats as an empty list. All are unknown when the
// key or the value could not be read.
std::vector<Item> QueryApplications(const std::vector<WString>& names);

}  // namespace kelvo
