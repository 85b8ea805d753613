#pragma once

#include <windows.h>

namespace kelvo::internal {

// Returns the edition name for a product type from GetProductInfo, or an empty string for a
// type that the table in product_edition.cpp lacks.
const wchar_t* ProductEditionText(DWORD productType);

}  // namespace kelvo::internal
