#pragma once

#include <string_view>

#include "lib/string/wstring.h"
#include "status/item.h"

namespace kelvo {

// Returns the item for the driver package of an INF file: present when a file with the same bytes
// is among those that Windows published in its INF folder when it took packages into the driver
// store. Packages with equal INF files and different catalogs are two for Windows, and one here.
//   - Unknown when the file cannot be read, has no section "Version" (ERROR_SECTION_NOT_FOUND) or
//     more than 4 MiB, and when a published file of the same size cannot be read and no other is
//     the same.
//   - A present one has provider and version of the section "Version", with the strings that these
//     refer to inserted (SetupGetLineTextW; setupapi.dll is loaded for that and freed).
Item QueryDriverPackage(const WString& infPath);

// Returns whether a file in the INF folder is a published one: "oem", digits, ".inf", in any letter
// case.
bool IsPublishedName(std::wstring_view name);

}  // namespace kelvo
