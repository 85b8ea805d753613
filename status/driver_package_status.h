#pragma once

#include <string_view>

#include "lib/string/wstring.h"
#include "status/item.h"

namespace kelvo {

// Returns the item for the driver package of the INF file `infPath`. When a package is added to the
// driver store, Windows copies the package's INF file to Windows' INF folder under a name such as
// oem12.inf. Such a copy is called a published INF file.
//   - The item is present when a published INF file has the same bytes as the file `infPath`. Two
//     packages with equal INF files therefore count as the same package here. In Windows, they are
//     different packages if their catalogs differ.
//   - The item is unknown when the file `infPath` cannot be read, is larger than 4 MiB or has no
//     section [Version] (ERROR_SECTION_NOT_FOUND).
//   - If no published file matches, the item is also unknown when the INF folder cannot be searched
//     or a published file cannot be compared. A published file cannot be compared when it cannot be
//     opened, or when it is as large as the file `infPath` but cannot be read.
//   - The details of a present item are the published file's name, and the provider and the version
//     from the section [Version], with %string% tokens expanded (SetupGetLineTextW). To read the
//     section, this function loads setupapi.dll and then frees it.
Item QueryDriverPackage(const WString& infPath);

// Returns whether `name` is a name that Windows gives to published INF files: "oem", one or more
// digits and ".inf", in any letter case.
bool IsPublishedName(std::wstring_view name);

}  // namespace kelvo
