#include "lib/process/process_readiness.h"

#include "lib/platform/owned.h"
#include "lib/process/waiting_messages.h"
#include "lib/string/wstring.h"
#include "lib/sysinfo/terminal_server.h"
#include "lib/sysinfo/windows_release.h"

namespace kelvo {

namespace {

constexpr DWORD kPollPauseMs = 100;

struct StartedProcess {
  OwnedKernelObject process;
  OwnedKernelObject thread;
};

bool StartProcess(const wchar_t* exePath, const wchar_t* arguments, StartedProcess& program) {
  WString commandLine = WString(L"\"") + exePath + L"\" " + arguments;
  STARTUPINFOW startup{};
  startup.cb = sizeof(startup);
  PROCESS_INFORMATION started{};
  if (CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, TRUE, NORMAL_PRIORITY_CLASS,
                     nullptr, nullptr, &startup, &started) == FALSE) {
    return false;
  }
  program.process.reset(started.hProcess);
  program.thread.reset(started.hThread);
  return true;
}

StartResult WaitForMutex(const WString& name, bool pumpMessages, DWORD timeoutMs) {
  const DWORD start = GetTickCount();
  // The unsigned difference stays right when the tick counter wraps.
  while (GetTickCount() - start < timeoutMs) {
    if (OwnedKernelObject(OpenMutexW(MUTEX_ALL_ACCESS, FALSE, name.c_str()))) {
      return kMutexAppeared;
    }
    // Polls without a pause between while messages are pumped, so that none has to wait.
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
  StartedProcess program;
  return StartProcess(exePath, arguments, program) ? WaitForMutex(name, pumpMessages, timeoutMs)
                                                   : kNotStarted;
}

}  // namespace kelvo
