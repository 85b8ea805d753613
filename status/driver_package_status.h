#pragma once

#include <string_view>

#include "lib/string/wstring.h"
#include "status/item.h"

namespace kelvo {

// Returns the item for the driver package of an INF file: present when Windows' INF folder has a
// file with the same bytes. There, Windows publishes the INF file of each package in the driver
// store. Two packages that differ only in their catalogs count as the same package here, but not in
// Windows.
//   - Unknown when the file cannot be read, is larger than 4 MiB or has no section [Version]
//     (ERROR_SECTION_NOT_FOUND). Also unknown when a published file of the same size cannot be read
//     and no other published file matches.
//   - A present item has the provider and the version from [Version], with %string% tokens expanded
//     (SetupGetLineTextW). Loads setupapi.dll for that and frees it.
Item QueryDriverPackage(const WString& infPath);

// Returns whether a file name is that of a published INF file: "oem", digits and ".inf", in any
// letter case.
bool IsPublishedName(std::wstring_view name);

}  // namespace kelvo
