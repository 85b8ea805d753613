#pragma once

#include <windows.h>

#include "lib/platform/guarded_call.h"

namespace kelvo::internal {

// Returns `succeeded`. When a step failed, traces `message` first, under the tag that all
// operations on access lists, tokens and the interactive desktop share.
bool Check(bool succeeded, const wchar_t* message);

// Runs `steps`, which returns whether the operation succeeded, then `cleanUp`, on every path. An
// exception of either kind that leaves `steps` counts as failure; one that leaves `cleanUp` only
// ends it. When the operation failed, `cleanUpMessage` is traced last. What the steps allocate
// belongs to owners outside of them, which the clean-up resets.
template <typename Steps, typename CleanUp>
BOOL GuardedOperation(const wchar_t* cleanUpMessage, const Steps& steps, const CleanUp& cleanUp) {
  const bool succeeded = GuardedAnswer(false, steps);
  GuardedCall(cleanUp);
  return Check(succeeded, cleanUpMessage) ? TRUE : FALSE;
}

}  // namespace kelvo::internal
