#pragma once

#include <windows.h>

namespace kelvo::internal {

// Returns the edition name for a product type from GetProductInfo, or an empty string when the type
// is not in the table in product_edition.cpp.
const wchar_t* ProductEditionText(DWORD productType);

}  // namespace kelvo::internal
