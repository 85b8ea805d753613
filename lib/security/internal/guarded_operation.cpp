#include "lib/security/internal/guarded_operation.h"

#include "lib/trace/trace_sink.h"

namespace kelvo::internal {

bool Check(bool succeeded, const wchar_t* message) {
  if (!succeeded) {
    TraceMessage(L"RunAsEx", message);
  }
  return succeeded;
}

}  // namespace kelvo::internal
