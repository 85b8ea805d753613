#include "lib/trace/trace_sink.h"

#include <atomic>

#include "lib/platform/guarded_call.h"

namespace kelvo {

namespace {

std::atomic<TraceSink> traceSink = nullptr;

}  // namespace

void SetTraceSink(TraceSink sink) { traceSink = sink; }

void TraceMessage(const wchar_t* tag, const wchar_t* message) {
  const TraceSink sink = traceSink;
  if (sink != nullptr) {
    GuardedCall([&] { sink(tag, message); });
  }
}

}  // namespace kelvo
