#include "lib/process/process_readiness.h"

#include "lib/process/internal/started_process.h"
#include "lib/process/waiting_messages.h"
#include "lib/sysinfo/terminal_server.h"
#include "lib/sysinfo/windows_release.h"

namespace kelvo {

namespace {

constexpr DWORD kPollPauseMs = 100;

internal::StartedProcess StartProgram(const wchar_t* exePath, const wchar_t* arguments) {
  WString commandLine = internal::QuotedCommandLine(exePath, arguments);
  STARTUPINFOW startup{};
  startup.cb = sizeof(startup);
  PROCESS_INFORMATION started{};
  const BOOL isCreated =
      CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, TRUE, NORMAL_PRIORITY_CLASS,
                     nullptr, nullptr, &startup, &started);
  return {isCreated, started};
}

StartResult WaitForMutex(const WString& name, bool pumpMessages, DWORD timeoutMs) {
  const DWORD start = GetTickCount();
  // The unsigned difference stays correct when the tick count wraps around to 0.
  while (GetTickCount() - start < timeoutMs) {
    if (OwnedKernelObject(OpenMutexW(MUTEX_ALL_ACCESS, FALSE, name.c_str()))) {
      return kMutexAppeared;
    }
    // With `pumpMessages`, the loop does not sleep, because a sleep would delay the messages.
    if (!pumpMessages) {
      Sleep(kPollPauseMs);
    } else if (PumpWaitingMessages() == WM_CLOSE) {
      return kClosedWhileWaiting;
    }
  }
  return kTimedOut;
}

}  // namespace

StartResult StartProcessAndWaitForMutex(const wchar_t* exePath, const wchar_t* arguments,
                                        bool pumpMessages, const wchar_t* mutexName,
                                        DWORD timeoutMs) {
  const bool global = IsWin2000() || IsWinNTTerminalServer();
  const WString name = WString(global ? L"Global\\" : L"") + mutexName;
  const internal::StartedProcess program = StartProgram(exePath, arguments);
  return program.process ? WaitForMutex(name, pumpMessages, timeoutMs) : kNotStarted;
}

}  // namespace kelvo
