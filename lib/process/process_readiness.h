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
//   - A mutex counts as missing when this process cannot open it with MUTEX_ALL_ACCESS, or when
//     `mutexName` is too long. Windows' documentation limits the name to 260 characters (MAX_PATH).
//   - If the mutex exists before the program is started, the wait ends at once. Any other program
//     can create the mutex, so kMutexAppeared does not prove that the started program runs.
//   - With `pumpMessages`, the calling thread's messages are dispatched during the wait. The wait
//     then keeps one processor busy. When a posted WM_CLOSE has been dispatched,
//     kClosedWhileWaiting is returned.
//   - With a `timeoutMs` of 0, the program is started, and kTimedOut is returned without a check
//     for the mutex.
//   - The function never ends the program, and leaves no handle to it open.
//
//   const StartResult result = StartProcessAndWaitForMutex(
//       L"C:\\App\\app.exe", L"/start", false, L"App is ready", 10'000);
StartResult StartProcessAndWaitForMutex(const wchar_t* exePath, const wchar_t* arguments,
                                        bool pumpMessages, const wchar_t* mutexName,
                                        DWORD timeoutMs);

}  // namespace kelvo
