#include "tests/support/trace_recorder.h"

#include <utility>

#include "lib/trace/trace_sink.h"

namespace kelvo::test {

namespace {

std::vector<std::wstring> traced;

}  // namespace

TraceRecorder::TraceRecorder() {
  traced.clear();
  SetTraceSink([](const wchar_t* tag, const wchar_t* message) {
    traced.push_back(tag == std::wstring(L"RunAsEx") ? message
                                                     : std::wstring(tag) + L": " + message);
  });
}

TraceRecorder::~TraceRecorder() { SetTraceSink(nullptr); }

std::vector<std::wstring> TraceRecorder::Take() { return std::exchange(traced, {}); }

}  // namespace kelvo::test
