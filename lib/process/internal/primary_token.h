#pragma once

#include "lib/platform/owned.h"

namespace kelvo::internal {

// Returns a primary token with all rights (MAXIMUM_ALLOWED), copied from `token` with
// DuplicateTokenEx, or `token` itself when that fails. Returns null for null.
OwnedKernelObject DuplicateAsPrimary(OwnedKernelObject token);

// Enables, in this process's token, the privileges that help to start a process with another token.
// Returns false, and traces it, when that fails for SeTakeOwnershipPrivilege; whether it fails for
// the others does not matter.
bool EnableStartPrivileges();

}  // namespace kelvo::internal
