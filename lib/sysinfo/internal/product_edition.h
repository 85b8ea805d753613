#pragma once

#include <windows.h>

namespace kelvo::internal {

// Returns the edition name for a product type from GetProductInfo, or an empty string when
// ProductEditionText has no name for the type.
const wchar_t* ProductEditionText(DWORD productType);

}  // namespace kelvo::internal
