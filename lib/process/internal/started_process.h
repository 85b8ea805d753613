#pragma once

#include "lib/platform/owned.h"
#include "lib/string/wstring.h"

namespace kelvo::internal {

// Owns the handles of a process that CreateProcessW or CreateProcessAsUserW created, and of that
// process's first thread. Both handles are null when no process was created.
struct StartedProcess {
  StartedProcess() = default;
  // `isCreated` is the result of CreateProcessW or CreateProcessAsUserW. When it is FALSE,
  // `started` is ignored.
  StartedProcess(BOOL isCreated, const PROCESS_INFORMATION& started)
      : process(isCreated != FALSE ? started.hProcess : nullptr),
        thread(isCreated != FALSE ? started.hThread : nullptr) {}

  OwnedKernelObject process;
  OwnedKernelObject thread;
};

// Returns a command line: the path in double quotes, a space and the unchanged arguments. A null
// pointer counts as an empty string.
inline WString QuotedCommandLine(const wchar_t* exePath, const wchar_t* arguments) {
  return WString(L"\"") + exePath + L"\" " + arguments;
}

}  // namespace kelvo::internal
