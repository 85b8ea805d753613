#pragma once

#include <windows.h>

#include "lib/platform/internal/guarded_call.h"

namespace kelvo::internal {

// Traces why a step failed, under the tag that all operations on access lists, tokens and the
// interactive desktop share, and answers false: `return Step() || StepFailed(L"...");`.
bool StepFailed(const wchar_t* message);

// Runs `steps`, which answers whether the operation succeeded, and then `cleanUp`, on every path:
// an exception of either kind that leaves the steps counts as failure, one that leaves the clean-up
// only ends it. When the operation failed, `cleanUpMessage` is traced last. What the steps allocate
// belongs to owners that stand outside of them and that the clean-up resets.
template <typename Steps, typename CleanUp>
BOOL GuardedOperation(const wchar_t* cleanUpMessage, Steps&& steps, CleanUp&& cleanUp) {
  const bool succeeded = GuardedAnswer(false, steps);
  GuardedCall(cleanUp);
  return succeeded || StepFailed(cleanUpMessage) ? TRUE : FALSE;
}

}  // namespace kelvo::internal
