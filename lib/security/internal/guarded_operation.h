#pragma once

#include <windows.h>

#include "lib/platform/guarded_call.h"

namespace kelvo::internal {

// Returns `succeeded`. If `succeeded` is false, first traces `message` with the tag "RunAsEx".
bool Check(bool succeeded, const wchar_t* message);

// Calls `steps` and then always calls `cleanUp`. Returns TRUE when `steps` returned true. Returns
// FALSE when `steps` returned false, or when a C++ or structured exception left `steps`. If the
// result is FALSE, traces `cleanUpMessage` last, after `cleanUp` has run. An exception that leaves
// `cleanUp` is swallowed and does not change the result.
//
// After a structured exception, destructors in `steps` do not run. Therefore, resources that
// `steps` allocates must belong to Owned objects (lib/platform/owned.h) that are declared outside
// `steps`. Let `cleanUp` reset these objects, so that an exception during the release is swallowed.
template <typename Steps, typename CleanUp>
BOOL GuardedOperation(const wchar_t* cleanUpMessage, const Steps& steps, const CleanUp& cleanUp) {
  const bool succeeded = GuardedAnswer(false, steps);
  GuardedCall(cleanUp);
  return Check(succeeded, cleanUpMessage) ? TRUE : FALSE;
}

}  // namespace kelvo::internal
