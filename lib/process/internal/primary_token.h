#pragma once

#include <windows.h>

namespace kelvo::internal {

// A primary token with all rights, made of this process's own, or the process's own with
// TOKEN_ASSIGN_PRIMARY, TOKEN_DUPLICATE and TOKEN_QUERY when it cannot be duplicated. Null when the
// process's token cannot be opened. The caller closes it.
HANDLE OpenPrimaryToken();

// Enables in this process's token the privileges that help to start a process with another token.
// Returns false, and traces it, when that fails for SeTakeOwnershipPrivilege; what becomes of the
// others does not matter.
bool EnableStartPrivileges();

}  // namespace kelvo::internal
