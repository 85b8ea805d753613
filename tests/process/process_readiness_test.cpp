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
  CHECK_BOTH(start(L"", false, 150) == -3, start(L"", true, 150) == -3);
  CHECK(start(L"close " + std::to_wstring(GetCurrentThreadId()), true, 10000) == -2);
  CHECK(start(L"mutex \"Global\\" + name + L"\"", false, 0) == -3);
  CHECK(start(L"", true, 10000) == 0);  // the mutex of the one before
  PostThreadMessageW(GetCurrentThreadId(), WM_CLOSE, 0, 0);
  PostThreadMessageW(GetCurrentThreadId(), WM_APP, 0, 0);
  std::string calls;
  REPLACE(TranslateMessage, [&](auto...) {
    calls += "translate ";
    return FALSE;
  });
  REPLACE(DispatchMessageW, [&](auto...) {
    calls += "dispatch ";
    return 0;
  });
  CHECK_BOTH(PumpWaitingMessages() == 16, calls == "translate dispatch ");
  CHECK_BOTH(PumpWaitingMessages() == 0, calls == "translate dispatch translate dispatch ");
}

TEST_CASE("the mutex is looked for every 100 ms, by a clock that wraps, as long as there is time") {
  const auto windows2000 = PretendWindows(2, 5, 0);
  DWORD now = 0;
  int lookups = 0;
  REPLACE(GetTickCount, [&](auto) { return now; });
  REPLACE(Sleep, [&](auto, DWORD pause) { now += pause; });
  REPLACE(CreateProcessW, [&](auto, auto... given) {
    std::get<9>(std::tuple(given...))->hProcess = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    return TRUE;
  });
  REPLACE(OpenMutexW, [&](auto, DWORD access, BOOL inherits, LPCWSTR name) {
    CHECK_BOTH(access == MUTEX_ALL_ACCESS, inherits == FALSE);
    CHECK(name == std::wstring(L"Global\\name"));
    ++lookups;
    return nullptr;
  });
  for (const auto& [timeout, expected] : {std::pair(300UL, 3), {301UL, 4}, {0UL, 0}}) {
    now = MAXDWORD - 150;
    lookups = 0;
    CHECK(StartProcessAndWaitForMutex(L"program", nullptr, false, L"name", timeout) == -3);
    CHECK(lookups == expected);
  }
}
