#pragma once

#include <windows.h>

#include <vector>

#include "lib/string/wstring.h"
#include "status/item.h"

namespace kelvo {

// What the registry holds where the list of dependent applications belongs.
struct ApplicationList {
  LSTATUS error = ERROR_SUCCESS;  // of opening the key or of querying the value
  DWORD type = REG_NONE;
  DWORD size = 0;  // in bytes
  WString text;    // the list as the tool reads it
};

// Reads the list (ReadApplicationList in tool/dependent_applications.h) without creating its key.
ApplicationList QueryApplicationList();

// Returns an item for each of `names`, which is present when the tool would find it in the list to
// remove it. Without names, returns an item for each application in the list, or a single absent
// one when there is none. An absent item says so when the registry holds something that the tool
// cannot read and treats as an empty list. All are unknown when the key or the value could not be
// read.
std::vector<Item> DescribeApplications(const ApplicationList& list,
                                       const std::vector<WString>& names);

}  // namespace kelvo
