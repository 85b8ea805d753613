#pragma once

#include <windows.h>

namespace kelvo::internal {

// The edition of Windows that a product type of GetProductInfo stands for, as a text to show; an
// empty text for every type that has none here.
const wchar_t* ProductEditionText(DWORD productType);

}  // namespace kelvo::internal
