#pragma once

#include "lib/platform/owned.h"
#include "lib/string/wstring.h"

namespace kelvo::internal {

// The handles of a process that CreateProcessW or CreateProcessAsUserW created; null before that.
struct StartedProcess {
  StartedProcess() = default;
  explicit StartedProcess(const PROCESS_INFORMATION& started)
      : process(started.hProcess), thread(started.hThread) {}

  OwnedKernelObject process;
  OwnedKernelObject thread;
};

// Returns the path in double quotes, a space and the arguments as they are; null counts as empty.
inline WString QuotedCommandLine(const wchar_t* exePath, const wchar_t* arguments) {
  return WString(L"\"") + exePath + L"\" " + arguments;
}

}  // namespace kelvo::internal
