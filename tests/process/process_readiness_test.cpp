#include "lib/process/process_readiness.h"

#include "lib/process/waiting_messages.h"
#include "tests/support/testing.h"

TEST_CASE("a started program is waited for until its mutex, a WM_CLOSE or the time-out") {
  const std::wstring child = ProgramPath(L"test_child.exe");
  const std::wstring name = L"kelvo test " + std::to_wstring(GetCurrentProcessId());
  const auto start = [&](const std::wstring& arguments, bool pump, DWORD timeoutMs) {
    return StartProcessAndWaitForMutex(child.c_str(), arguments.c_str(), pump, name.c_str(),
                                       timeoutMs);
  };
  CHECK(StartProcessAndWaitForMutex(L"not there", L"", false, name.c_str(), 10000) == -1);
  CHECK((start(L"", false, 150) == -3 && start(L"", true, 150) == -3));
  CHECK(start(L"close " + std::to_wstring(GetCurrentThreadId()), true, 10000) == -2);
  CHECK(start(L"mutex \"Global\\" + name + L"\"", false, 0) == -3);
  CHECK(start(L"", true, 10000) == 0);  // the mutex of the one before
  PostThreadMessageW(GetCurrentThreadId(), WM_CLOSE, 0, 0);
  PostThreadMessageW(GetCurrentThreadId(), WM_APP, 0, 0);
  CHECK((PumpWaitingMessages() == 16 && GetQueueStatus(QS_POSTMESSAGE) != 0));
  CHECK(PumpWaitingMessages() == 0);

  // Before Windows 2000 the name is plain; whole it is, too.
  const auto nt4 = PretendWindows(2, 4, 0);
  const ReplacedExport noTerminalServer("VerifyVersionInfoA", nullptr);
  const std::wstring longName(600, L'n');
  REPLACE(OpenMutexW, [&](auto, auto, auto, auto asked) {
    return asked == longName ? CreateEventW(nullptr, FALSE, FALSE, nullptr) : nullptr;
  });
  CHECK(StartProcessAndWaitForMutex(child.c_str(), nullptr, false, longName.c_str(), 10000) == 0);
}
