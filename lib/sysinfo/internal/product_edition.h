#pragma once

#include <windows.h>

namespace kelvo::internal {

// Returns the edition name for a product type from GetProductInfo, or an empty string for a type
// that this function does not know.
const wchar_t* ProductEditionText(DWORD productType);

}  // namespace kelvo::internal
