#pragma once

#include <windows.h>

#include <cstdint>

namespace kelvo {

// What StartProcessAndWaitForMutex returns.
enum StartResult : std::int32_t {
  kMutexAppeared = 0,
  kNotStarted = -1,
  kClosedWhileWaiting = -2,
  kTimedOut = -3,
};

// Starts the program `exePath` with `arguments` (CreateProcessW, with this process's inheritable
// handles) and waits until a mutex named `mutexName` exists, by which the program signals that it
// is ready. The mutex may exist already. The program keeps running whatever the result, and no
// handle stays open. Null strings count as empty.
//   - On Windows 2000 and later, and on a terminal server, the mutex is looked up in the global
//     namespace ("Global\..."), and so in all sessions.
//   - A mutex that does not grant MUTEX_ALL_ACCESS counts as missing. So does one whose name is too
//     long for Windows (260 characters).
//   - Anyone can create the mutex first: that it exists does not prove that the program runs.
//   - With `pumpMessages`, the calling thread's messages are dispatched during the wait, and a
//     WM_CLOSE among them ends it. This keeps a processor busy.
//   - With a `timeoutMs` of 0, the program is started and kTimedOut is returned without looking for
//     the mutex.
//
//   const StartResult result = StartProcessAndWaitForMutex(
//       L"C:\\App\\app.exe", L"/start", false, L"App is ready", 10'000);
StartResult StartProcessAndWaitForMutex(const wchar_t* exePath, const wchar_t* arguments,
                                        bool pumpMessages, const wchar_t* mutexName,
                                        DWORD timeoutMs);

}  // namespace kelvo
