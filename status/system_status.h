#pragma once

#include "status/item.h"

namespace kelvo {

// The running Windows (GetSystemVersionString), and whether the caller is an administrator and
// elevated (IsAdmin, IsVistaProcessElevated).
Item DescribeSystem();

}  // namespace kelvo
