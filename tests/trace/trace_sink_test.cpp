#include "lib/trace/trace_sink.h"

#include "tests/support/catch.h"

namespace kelvo {

TEST_CASE("a sink gets tag and message until it is taken away") {
  static std::wstring received;
  TraceMessage(L"tag", L"before");
  SetTraceSink([](const wchar_t* tag, const wchar_t* message) {
    received += std::wstring(tag) + L"=" + message + L";";
    throw 1;  // the sink's own trouble
  });
  TraceMessage(L"tag", L"first");
  TraceMessage(L"other", L"second");
  SetTraceSink(nullptr);
  TraceMessage(L"tag", L"after");
  CHECK(received == L"tag=first;other=second;");
}

}  // namespace kelvo
