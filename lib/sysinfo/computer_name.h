#pragma once

#include "lib/string/wstring.h"

namespace kelvo {

// Returns the computer's NetBIOS name (GetComputerNameW), at most 15 characters. Empty on failure.
WString GetComputerNetbiosName();

// Returns the computer's fully qualified DNS name (GetComputerNameExW, looked up at run time). When
// Windows lacks GetComputerNameExW, or that function returns no name, returns the NetBIOS name.
// Empty when GetComputerNameW also fails.
WString GetComputerNameFQ();

// Returns the DNS suffix of the computer's name (ComputerNameDnsDomain of GetComputerNameExW,
// looked up at run time). Empty when there is none, on failure, and when Windows lacks the
// function.
WString GetComputerDomain();

}  // namespace kelvo
