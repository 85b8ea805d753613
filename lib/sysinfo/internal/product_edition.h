#pragma once

#include <windows.h>

namespace kelvo::internal {

// Returns the name of the Windows edition that a product type of GetProductInfo stands for; an
// empty string for a type that has none here.
const wchar_t* ProductEditionText(DWORD productType);

}  // namespace kelvo::internal
