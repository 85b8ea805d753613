#pragma once

#include <windows.h>

#include "lib/platform/guarded_call.h"

namespace kelvo::internal {

// Returns `succeeded`. If it is false, first traces `message` with the tag "RunAsEx".
bool Check(bool succeeded, const wchar_t* message);

// Runs `steps`, which returns whether the operation succeeded, and then always runs `cleanUp`. A
// C++ or structured exception that leaves `steps` counts as failure; an exception that leaves
// `cleanUp` is swallowed and does not change the result. After a failure, traces `cleanUpMessage`
// last. Resources that `steps` allocates must belong to Owned objects (lib/platform/owned.h) that
// are declared outside `steps`; `cleanUp` must reset these objects.
template <typename Steps, typename CleanUp>
BOOL GuardedOperation(const wchar_t* cleanUpMessage, const Steps& steps, const CleanUp& cleanUp) {
  const bool succeeded = GuardedAnswer(false, steps);
  GuardedCall(cleanUp);
  return Check(succeeded, cleanUpMessage) ? TRUE : FALSE;
}

}  // namespace kelvo::internal
