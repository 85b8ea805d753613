#pragma once

#include "lib/registry/registry_value_list.h"

namespace kelvo {

// Replaces the contents of `report` with facts about the system, the process and the user, for a
// log or a support dialog:
//   - The first entries have the same names in the same order on every call. Each shows the result
//     of a function, or the path of a shell folder (SHGetSpecialFolderPathW). Missing shell folders
//     are not created.
//   - The other entries are the environment variables that the registry stores for the user
//     (HKEY_CURRENT_USER "Environment") and for the system (HKEY_LOCAL_MACHINE
//     "SYSTEM\CurrentControlSet\Control\Session Manager\Environment"). ReadRegistryKeyValues
//     (lib/registry/registry_value_list.h) reads them. A key that does not open adds no entries.
//   - When the path of a shell folder cannot be read, the text of its entry is "failed to query "
//     followed by the name of the entry. When one of the functions fails, its entry shows the
//     result that the function returns on failure. For most functions, this is "0" (false) or an
//     empty string.
//   - When the call throws, `report` is incomplete.
//
//   NameTextList report;
//   CollectSystemReport(report);
//   for (const auto& [name, text] : report) log += name + L": " + text + L"\n";
void CollectSystemReport(NameTextList& report);

}  // namespace kelvo
