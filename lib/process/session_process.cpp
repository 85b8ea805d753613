#include "lib/process/session_process.h"

#include <utility>

#include "lib/platform/owned.h"
#include "lib/process/interactive_desktop.h"
#include "lib/process/run_as_user.h"
#include "lib/process/user_session.h"
#include "lib/string/wstring.h"
#include "lib/sysinfo/windows_release.h"

namespace kelvo {

namespace {

bool RunsInConsoleSession() {
  DWORD session = 0;
  ProcessIdToSessionId(GetCurrentProcessId(), &session);
  return session == GetActiveConsoleSessionId();
}

// A token to start a process with, for the user of the console session; null when there is none.
OwnedKernelObject TokenOfConsoleUser() {
  OwnedKernelObject token;
  if (!QueryUserTokenOfSession(GetActiveConsoleSessionId(), token.Receive())) {
    return token;
  }
  OwnedKernelObject duplicate;
  // Level 3; a primary token makes no use of it.
  const BOOL duplicated = DuplicateTokenEx(token.get(), MAXIMUM_ALLOWED, nullptr,
                                           SecurityDelegation, TokenPrimary, duplicate.Receive());
  return duplicated != FALSE ? std::move(duplicate) : std::move(token);
}

bool Start(WString& commandLine, const OwnedKernelObject& token, PROCESS_INFORMATION& started) {
  STARTUPINFOW startup{};
  startup.cb = sizeof(startup);
  wchar_t* const line = commandLine.data();
  const BOOL created = token ? CreateProcessAsUserW(token.get(), nullptr, line, nullptr, nullptr,
                                                    FALSE, 0, nullptr, nullptr, &startup, &started)
                             : CreateProcessW(nullptr, line, nullptr, nullptr, FALSE, 0, nullptr,
                                              nullptr, &startup, &started);
  return created != FALSE;
}

}  // namespace

bool LaunchInUserSession(const wchar_t* exePath, const wchar_t* arguments, bool wait,
                         HANDLE* processHandle) {
  WString commandLine = WString(L"\"") + exePath + L"\" " + arguments;
  const bool asConsoleUser = IsWinXP() || !RunsInConsoleSession();
  if (!asConsoleUser && IsOnInteractiveDesktop() == FALSE) {
    return RunAsUser(commandLine.data(), wait ? TRUE : FALSE, processHandle) != FALSE;
  }
  PROCESS_INFORMATION started{};
  if (!Start(commandLine, asConsoleUser ? TokenOfConsoleUser() : OwnedKernelObject(), started)) {
    return false;
  }
  OwnedKernelObject process(started.hProcess);
  const OwnedKernelObject thread(started.hThread);
  if (wait) {
    WaitForSingleObject(process.get(), INFINITE);
  }
  if (processHandle != nullptr) {
    *processHandle = process.release();  // the caller closes it
  }
  return true;
}

}  // namespace kelvo
