#pragma once

#include "lib/string/wstring.h"

namespace kelvo {

// The computer's NetBIOS name (GetComputerNameW), at most 15 characters; empty on failure.
WString GetComputerNetbiosName();

// The computer's fully qualified DNS name (GetComputerNameExW, looked up at run time); when that
// gives nothing, its NetBIOS name (GetComputerNameW). Empty on failure.
WString GetComputerNameFQ();

// The DNS domain that the computer belongs to (GetComputerNameExW, looked up at run time). Empty on
// failure, outside a domain, and on a Windows without the function.
WString GetComputerDomain();

}  // namespace kelvo
