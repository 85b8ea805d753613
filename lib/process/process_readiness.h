#pragma once

#include <windows.h>

#include <cstdint>

namespace kelvo {

// The result of StartProcessAndWaitForMutex.
enum StartResult : std::int32_t {
  kMutexAppeared = 0,
  kNotStarted = -1,
  kClosedWhileWaiting = -2,
  kTimedOut = -3,
};

// Starts the program `exePath` with `arguments` and waits until a mutex named `mutexName` exists.
// The program creates this mutex to signal that it is ready. Uses CreateProcessW; the program
// inherits this process's inheritable handles. Null strings count as empty.
//   - On Windows 2000 and later, and on a terminal server, the mutex is opened in the global
//     namespace ("Global\..."), which all sessions share.
//   - A mutex that does not grant MUTEX_ALL_ACCESS counts as missing. So does a mutex whose name is
//     too long for Windows (260 characters).
//   - If the mutex exists before the program is started, the wait ends at once. Any other program
//     can create the mutex, so kMutexAppeared does not prove that the program runs.
//   - With `pumpMessages`, the calling thread's messages are dispatched during the wait, and
//     dispatching a WM_CLOSE ends the wait. Such a wait keeps one processor busy.
//   - With a `timeoutMs` of 0, the program is started, and kTimedOut is returned without a check
//     for the mutex.
//   - The function never ends the program, and it closes all its handles to the program.
//
//   const StartResult result = StartProcessAndWaitForMutex(
//       L"C:\\App\\app.exe", L"/start", false, L"App is ready", 10'000);
StartResult StartProcessAndWaitForMutex(const wchar_t* exePath, const wchar_t* arguments,
                                        bool pumpMessages, const wchar_t* mutexName,
                                        DWORD timeoutMs);

}  // namespace kelvo
