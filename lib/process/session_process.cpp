#include "lib/process/session_process.h"

#include <utility>

#include "lib/process/interactive_desktop.h"
#include "lib/process/internal/primary_token.h"
#include "lib/process/internal/started_process.h"
#include "lib/process/run_as_user.h"
#include "lib/process/user_session.h"
#include "lib/sysinfo/windows_release.h"

namespace kelvo {

namespace {

bool RunsInConsoleSession() {
  DWORD session = 0;
  ProcessIdToSessionId(GetCurrentProcessId(), &session);
  return session == GetActiveConsoleSessionId();
}

// Returns a primary token of the console session's user, or null when QueryUserTokenOfSession
// fails.
OwnedKernelObject TokenOfConsoleUser() {
  OwnedKernelObject token;
  return token.KeepIf(QueryUserTokenOfSession(GetActiveConsoleSessionId(), token.Receive()))
             ? internal::DuplicateAsPrimary(std::move(token))
             : OwnedKernelObject();
}

internal::StartedProcess Start(WString& commandLine, const OwnedKernelObject& token) {
  STARTUPINFOW startup{};
  startup.cb = sizeof(startup);
  PROCESS_INFORMATION started{};
  wchar_t* const line = commandLine.data();
  const BOOL isCreated = token
                             ? CreateProcessAsUserW(token.get(), nullptr, line, nullptr, nullptr,
                                                    FALSE, 0, nullptr, nullptr, &startup, &started)
                             : CreateProcessW(nullptr, line, nullptr, nullptr, FALSE, 0, nullptr,
                                              nullptr, &startup, &started);
  return {isCreated, started};
}

}  // namespace

bool LaunchInUserSession(const wchar_t* exePath, const wchar_t* arguments, bool wait,
                         HANDLE* processHandle) {
  WString commandLine = internal::QuotedCommandLine(exePath, arguments);
  const bool asConsoleUser = IsWinXP() || !RunsInConsoleSession();
  if (!asConsoleUser && IsOnInteractiveDesktop() == FALSE) {
    return RunAsUser(commandLine.data(), wait ? TRUE : FALSE, processHandle) != FALSE;
  }
  internal::StartedProcess started =
      Start(commandLine, asConsoleUser ? TokenOfConsoleUser() : OwnedKernelObject());
  if (!started.process) {
    return false;
  }
  if (wait) {
    WaitForSingleObject(started.process.get(), INFINITE);
  }
  if (processHandle != nullptr) {
    *processHandle = started.process.release();  // the caller closes it
  }
  return true;
}

}  // namespace kelvo
