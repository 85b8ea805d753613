#pragma once

#include "lib/platform/owned.h"

namespace kelvo::internal {

// Duplicates `token` as a primary token (DuplicateTokenEx) and returns the duplicate. The handle of
// the duplicate has every access right that Windows grants to the caller (MAXIMUM_ALLOWED). When
// the duplication fails, returns `token` itself. When `token` is null, returns null.
OwnedKernelObject DuplicateAsPrimary(OwnedKernelObject token);

// Enables, in this process's token, the privileges that lib/process/run_as_user.h lists. Calls
// EnablePrivilege (lib/security/process_privilege.h), which does not fail for a privilege that the
// token does not hold. When EnablePrivilege fails for SeTakeOwnershipPrivilege, traces the failure
// (lib/trace/trace_sink.h) and returns false. Otherwise returns true: a failure for any other
// privilege is ignored.
bool EnableStartPrivileges();

}  // namespace kelvo::internal
