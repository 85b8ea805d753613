#pragma once

#include "lib/registry/registry_value_list.h"

namespace kelvo {

// Replaces the contents of `report` with what this library finds out about the system, the process
// and the user, for a log or a support dialog:
//   - First come the same names in the same order on every call. Shell folders come from
//     SHGetSpecialFolderPathW and are not created.
//   - Then comes one entry for each environment variable of the user and of the system in the
//     registry, expanded as by ReadRegistryKeyValues (HKEY_CURRENT_USER "Environment" and
//     HKEY_LOCAL_MACHINE "SYSTEM\CurrentControlSet\Control\Session Manager\Environment"). A key
//     that does not open adds no entries.
//   - A query that fails has the value "0", an empty string, or "failed to query " and the name of
//     a shell folder.
//   - When it throws, `report` is incomplete.
//
//   NameTextList report;
//   CollectSystemReport(report);
//   for (const auto& [name, text] : report) log += name + L": " + text + L"\n";
void CollectSystemReport(NameTextList& report);

}  // namespace kelvo
