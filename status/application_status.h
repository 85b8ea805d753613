#pragma once

#include <windows.h>

#include <vector>

#include "lib/string/wstring.h"
#include "status/item.h"

namespace kelvo {

// What the registry holds in place of the list of dependent applications.
struct ApplicationList {
  LSTATUS error = ERROR_SUCCESS;  // of opening the key and of asking for the value
  DWORD type = REG_NONE;
  DWORD size = 0;  // in bytes
  WString text;    // the list as the tool reads it
};

// Reads the list, without creating its key (ReadApplicationList says which one).
ApplicationList QueryApplicationList();

// An item for each of `names`, present when removing it would find it in the list. Without names,
// one for each application of the list, or a single absent one. Each absent one says when something
// stands in place of the list that the tool cannot read and takes as empty.
std::vector<Item> DescribeApplications(const ApplicationList& list,
                                       const std::vector<WString>& names);

}  // namespace kelvo
