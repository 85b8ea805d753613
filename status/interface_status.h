#pragma once

#include "lib/string/wstring.h"
#include "status/item.h"

namespace kelvo {

// Where the driver installation interface is, and the version of its file.
struct InterfaceFacts {
  WString path;  // beside the program, or else in the system directory; empty when in neither
  WString version;
};

// Looks for the file at DriverInterfacePath, and does not load it.
InterfaceFacts QueryInterface();

Item DescribeInterface(const InterfaceFacts& facts);

}  // namespace kelvo
