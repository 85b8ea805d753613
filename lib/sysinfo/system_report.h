#pragma once

#include "lib/registry/registry_value_list.h"

namespace kelvo {

// Fills `report`, emptied first, with what this library finds out about the running system, the
// process and the user, for a log or a support dialog: always the same names in the same order,
// then one entry for each variable of the user's and of the system's environment, as the registry
// keeps them. Every query answers something: "0", an empty text, or "failed to query " with the
// name of a shell folder. An environment key that does not open adds no entries.
void CollectSystemReport(NameTextList& report);

}  // namespace kelvo
