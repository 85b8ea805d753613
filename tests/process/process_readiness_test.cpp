#include "lib/process/process_readiness.h"

#include "lib/process/waiting_messages.h"
#include "tests/support/testing.h"

TEST_CASE("StartProcessAndWaitForMutex: waits for the mutex, a WM_CLOSE or the time-out") {
  const auto windows2000 = PretendWindows(2, 5, 0);
  DWORD now = 0;
  REPLACE(GetTickCount, [&](auto) { return now; });
  REPLACE(Sleep, [&](auto, DWORD pause) { now += pause; });
  BOOL isStarted = FALSE;
  REPLACE(CreateProcessW, [&](auto, auto... given) {
    std::get<9>(std::tuple(given...))->hProcess = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    return isStarted;
  });
  // Each call of OpenMutexW takes one simulated millisecond. Call number `mutexAt` finds the mutex.
  // During call number `closeAt`, this thread gets a WM_CLOSE.
  int lookups = 0, mutexAt = 0, closeAt = 0;
  REPLACE(OpenMutexW, [&](auto, auto, auto, LPCWSTR name) {
    CHECK(name == std::wstring(L"Global\\name"));
    ++now;
    ++lookups;
    if (lookups == closeAt) {
      PostThreadMessageW(GetCurrentThreadId(), WM_CLOSE, 0, 0);
    }
    return lookups == mutexAt ? CreateMutexW(nullptr, FALSE, nullptr) : nullptr;
  });
  const auto wait = [&](bool pumps, DWORD timeoutMs) {
    // The tick count wraps to 0 after 151 ms.
    now = MAXDWORD - 150;
    lookups = 0;
    return StartProcessAndWaitForMutex(L"program", nullptr, pumps, L"name", timeoutMs);
  };
  CHECK_BOTH(wait(false, 303) == -1, lookups == 0);
  isStarted = TRUE;
  CHECK_BOTH(wait(false, 303) == -3, lookups == 3);
  CHECK_BOTH(wait(false, 304) == -3, lookups == 4);
  CHECK_BOTH(wait(false, 0) == -3, lookups == 0);
  CHECK_BOTH(wait(true, 9) == -3, lookups == 9);
  closeAt = 2;
  CHECK_BOTH(wait(true, 9) == -2, lookups == 2);
  mutexAt = 1;
  CHECK_BOTH(wait(true, 9) == 0, lookups == 1);
  CHECK_BOTH(wait(false, 303) == 0, lookups == 1);
}

TEST_CASE("PumpWaitingMessages: dispatches waiting messages, up to and including a WM_CLOSE") {
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
