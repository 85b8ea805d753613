#pragma once

#include <windows.h>

namespace kelvo::internal {

// Returns the name of the edition with this product type, which is a number from GetProductInfo.
// Returns an empty string when the table in product_edition.cpp does not contain the type.
const wchar_t* ProductEditionText(DWORD productType);

}  // namespace kelvo::internal
