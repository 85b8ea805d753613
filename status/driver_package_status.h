#pragma once

#include <string_view>

#include "lib/string/wstring.h"
#include "status/item.h"

namespace kelvo {

// Returns the item for the driver package of an INF file: present when a file with the same bytes
// is in Windows' INF folder, where Windows publishes the INF of each package in the driver store.
// Packages that differ only in their catalog are two for Windows but one here.
//   - Unknown when the file cannot be read, is larger than 4 MiB or has no section [Version]
//     (ERROR_SECTION_NOT_FOUND), or when a published file of the same size cannot be read and no
//     other one matches.
//   - A present item has provider and version from [Version], with %string% tokens expanded
//     (SetupGetLineTextW; setupapi.dll is loaded for that and freed).
Item QueryDriverPackage(const WString& infPath);

// Returns whether a file in the INF folder is a published one: "oem", digits, ".inf", in any letter
// case.
bool IsPublishedName(std::wstring_view name);

}  // namespace kelvo
