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

// Looks for a file of the same bytes among those that Windows published in its INF folder when it
// took up driver packages. One of them that cannot be read is an error unless another is the same.
DriverPackageFacts QueryDriverPackage(const wchar_t* infPath);

// Whether a file of the INF folder was published there: "oem", digits, ".inf", regardless of case.
bool IsPublishedName(std::wstring_view name);

Item DescribeDriverPackage(const WString& infPath, const DriverPackageFacts& facts);

}  // namespace kelvo
