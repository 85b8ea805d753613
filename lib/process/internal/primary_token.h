#pragma once

#include "lib/platform/owned.h"

namespace kelvo::internal {

// Returns a primary token with all rights (MAXIMUM_ALLOWED), duplicated from `token` with
// DuplicateTokenEx, or `token` itself when that fails. Returns null for null.
OwnedKernelObject DuplicateAsPrimary(OwnedKernelObject token);

// Enables the privileges in this process's token that help to start a process with another token.
// Returns false, and traces it, when enabling SeTakeOwnershipPrivilege fails; ignores failures of
// the others.
bool EnableStartPrivileges();

}  // namespace kelvo::internal
