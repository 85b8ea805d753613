#pragma once

#include <windows.h>

namespace kelvo::internal {

// Returns the edition name for a product type of GetProductInfo, or an empty string for a type
// without a name here.
const wchar_t* ProductEditionText(DWORD productType);

}  // namespace kelvo::internal
