#pragma once

#include <windows.h>

#include "lib/string/wstring.h"
#include "status/inf_version.h"
#include "status/item.h"

namespace kelvo {

struct DriverPackageFacts {
  DWORD error = ERROR_SUCCESS;  // why a file could not be read
  WString publishedName;        // the copy in Windows' INF folder, "oem3.inf"; empty for none
  InfVersion version;           // read only when there is a copy
};

// Looks for a file with the same bytes among those that Windows published in its INF folder when it
// staged driver packages. When one of them cannot be read and no other is the same, that is an
// error.
DriverPackageFacts QueryDriverPackage(const wchar_t* infPath);

// Returns whether a file in the INF folder is a published one: "oem", digits, ".inf", in any letter
// case.
bool IsPublishedName(std::wstring_view name);

Item DescribeDriverPackage(const WString& infPath, const DriverPackageFacts& facts);

}  // namespace kelvo
