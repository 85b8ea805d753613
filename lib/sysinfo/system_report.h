#pragma once

#include "lib/registry/registry_value_list.h"

namespace kelvo {

// Empties `report` and fills it with what this library finds out about the running system, the
// process and the user, for a log or a support dialog: always the same names in the same order,
// then one entry for each variable of the user's and of the system's environment in the registry,
// as ReadRegistryKeyValues returns them: expanded (HKEY_CURRENT_USER "Environment" and
// HKEY_LOCAL_MACHINE "SYSTEM\CurrentControlSet\Control\Session Manager\Environment"). Shell folders
// come from SHGetSpecialFolderPathW and are not created. A query that fails has the value "0", an
// empty string, or "failed to query " and the name of a shell folder; an environment key that does
// not open adds no entries. When it throws, `report` is incomplete.
//   NameTextList report;
//   CollectSystemReport(report);
//   for (const auto& [name, text] : report) log += name + L": " + text + L"\n";
void CollectSystemReport(NameTextList& report);

}  // namespace kelvo
