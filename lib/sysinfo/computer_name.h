#pragma once

#include "lib/string/wstring.h"

namespace kelvo {

// The names of this computer.

// Returns the NetBIOS name (GetComputerNameW), of at most 15 characters; empty on failure.
WString GetComputerNetbiosName();

// Returns the fully qualified DNS name (GetComputerNameExW, looked up at run time); when there is
// none, or Windows does not have the function, the NetBIOS name. Empty on failure.
WString GetComputerNameFQ();

// Returns the DNS domain that the computer belongs to (GetComputerNameExW, looked up at run time).
// Empty outside a domain, on failure, and when Windows does not have the function.
WString GetComputerDomain();

}  // namespace kelvo
