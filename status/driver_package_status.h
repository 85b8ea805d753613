#pragma once

#include <string_view>

#include "lib/string/wstring.h"
#include "status/item.h"

namespace kelvo {

// Returns the item for the driver package of an INF file: present when Windows' INF folder has a
// published INF file with the same bytes. For each package in the driver store, Windows publishes
// the INF file: it copies the file to the INF folder under a name such as oem12.inf. Two packages
// with equal INF files count as the same package here, but not in Windows if their catalogs differ.
//   - The item is unknown when the file `infPath` cannot be read, is larger than 4 MiB or has no
//     section [Version] (ERROR_SECTION_NOT_FOUND).
//   - If no published file matches, the item is also unknown when the INF folder cannot be searched
//     or a published file cannot be compared. A published file cannot be compared when it cannot be
//     opened, or when it has the size of the file `infPath` and cannot be read.
//   - A present item has the published file's name, and the provider and the version from the
//     section [Version], with %string% tokens expanded (SetupGetLineTextW). To read the section,
//     loads setupapi.dll and frees it again.
Item QueryDriverPackage(const WString& infPath);

// Returns whether a file name is that of a published INF file: "oem", digits and ".inf", in any
// letter case.
bool IsPublishedName(std::wstring_view name);

}  // namespace kelvo
