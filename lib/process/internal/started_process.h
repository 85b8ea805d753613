#pragma once

#include "lib/platform/owned.h"
#include "lib/string/wstring.h"

namespace kelvo::internal {

// What CreateProcessW and its like give of a new process; none before that.
struct StartedProcess {
  StartedProcess() = default;
  explicit StartedProcess(const PROCESS_INFORMATION& started)
      : process(started.hProcess), thread(started.hThread) {}

  OwnedKernelObject process;
  OwnedKernelObject thread;
};

// The path in double quotes, a blank and the arguments as they are; null counts as empty.
inline WString QuotedCommandLine(const wchar_t* exePath, const wchar_t* arguments) {
  return WString(L"\"") + exePath + L"\" " + arguments;
}

}  // namespace kelvo::internal
