#pragma once

#include "status/item.h"

namespace kelvo {

// Returns the item for the running Windows (GetSystemVersionString), which also tells whether the
// caller is an administrator and elevated (IsAdmin, IsVistaProcessElevated).
Item DescribeSystem();

}  // namespace kelvo
