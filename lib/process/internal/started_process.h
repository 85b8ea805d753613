#pragma once

#include "lib/platform/owned.h"
#include "lib/string/wstring.h"

namespace kelvo::internal {

// The handles of a process that CreateProcessW or CreateProcessAsUserW created; null before that.
struct StartedProcess {
  StartedProcess() = default;
  // `isCreated` is the call's result: when the call failed, `started` holds no process.
  StartedProcess(BOOL isCreated, const PROCESS_INFORMATION& started)
      : process(isCreated != FALSE ? started.hProcess : nullptr),
        thread(isCreated != FALSE ? started.hThread : nullptr) {}

  OwnedKernelObject process;
  OwnedKernelObject thread;
};

// Returns the path in double quotes, a space and the unchanged arguments; null counts as empty.
inline WString QuotedCommandLine(const wchar_t* exePath, const wchar_t* arguments) {
  return WString(L"\"") + exePath + L"\" " + arguments;
}

}  // namespace kelvo::internal
