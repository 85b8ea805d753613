#pragma once

#include <string>
#include <vector>

namespace kelvo::test {

// Keeps what this process traces as long as it lives.
class TraceRecorder {
 public:
  TraceRecorder();
  TraceRecorder(const TraceRecorder&) = delete;
  TraceRecorder& operator=(const TraceRecorder&) = delete;
  ~TraceRecorder();

  // The messages since the last call; one with another tag than "RunAsEx" comes with its tag.
  std::vector<std::wstring> Take();
};

}  // namespace kelvo::test
