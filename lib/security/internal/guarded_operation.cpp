#include "lib/security/internal/guarded_operation.h"

#include "lib/trace/trace_sink.h"

namespace kelvo::internal {

bool StepFailed(const wchar_t* message) {
  TraceMessage(L"RunAsEx", message);
  return false;
}

}  // namespace kelvo::internal
