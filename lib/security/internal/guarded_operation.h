#pragma once

#include <windows.h>

#include "lib/platform/guarded_call.h"

namespace kelvo::internal {

// Returns `succeeded`; if it is false, first traces `message` under the tag that all operations on
// ACLs, tokens and the interactive desktop share.
bool Check(bool succeeded, const wchar_t* message);

// Runs `steps`, which returns whether the operation succeeded, and then `cleanUp`, on every path. A
// C++ or structured exception that leaves `steps` counts as failure; one that leaves `cleanUp` only
// ends it. After a failure, traces `cleanUpMessage` last. What `steps` allocates must
// belong to owners declared outside `steps`; reset them in `cleanUp`.
template <typename Steps, typename CleanUp>
BOOL GuardedOperation(const wchar_t* cleanUpMessage, const Steps& steps, const CleanUp& cleanUp) {
  const bool succeeded = GuardedAnswer(false, steps);
  GuardedCall(cleanUp);
  return Check(succeeded, cleanUpMessage) ? TRUE : FALSE;
}

}  // namespace kelvo::internal
