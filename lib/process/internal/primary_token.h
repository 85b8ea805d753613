#pragma once

#include "lib/platform/owned.h"

namespace kelvo::internal {

// Duplicates `token` as a primary token (DuplicateTokenEx) and returns the duplicate, whose handle
// has all the rights that Windows allows (MAXIMUM_ALLOWED). When the duplication fails, returns
// `token` itself. When `token` is null, returns null.
OwnedKernelObject DuplicateAsPrimary(OwnedKernelObject token);

// Enables, in this process's token, the privileges that help to start a process with another token.
// When EnablePrivilege fails for SeTakeOwnershipPrivilege, traces the failure and returns false.
// Ignores a failure for any other privilege. EnablePrivilege does not fail for a privilege that the
// token does not hold.
bool EnableStartPrivileges();

}  // namespace kelvo::internal
