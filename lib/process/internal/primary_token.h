#pragma once

#include "lib/platform/owned.h"

namespace kelvo::internal {

// Duplicates `token` as a primary token (DuplicateTokenEx) and returns the duplicate, whose handle
// has all the rights that Windows allows (MAXIMUM_ALLOWED). When the duplication fails, returns
// `token` itself. When `token` is null, returns null.
OwnedKernelObject DuplicateAsPrimary(OwnedKernelObject token);

// Enables, in this process's token, the privileges that help to start a process with another token.
// When enabling SeTakeOwnershipPrivilege fails, traces the failure and returns false. Ignores
// failures to enable the other privileges.
bool EnableStartPrivileges();

}  // namespace kelvo::internal
