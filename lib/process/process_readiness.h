#pragma once

#include <windows.h>

#include <cstdint>

namespace kelvo {

enum StartResult : std::int32_t {
  kMutexAppeared = 0,
  kNotStarted = -1,
  kClosedWhileWaiting = -2,
  kTimedOut = -3,
};

// Starts the program `exePath` (CreateProcessW, with this process's inheritable handles) with
// `arguments` and waits until it signals that it is ready by a mutex named `mutexName`, which may
// also be there already. The program keeps running whatever the answer is; no handle stays open.
//
// From Windows 2000 on, and on a terminal server, the mutex is looked for in the global name space
// ("Global\"), and so in all sessions. It needs MUTEX_ALL_ACCESS; one that does not grant it counts
// as missing. A name of any length is looked up whole. Null texts count as empty.
//
// With `pumpMessages` the calling thread's messages are dispatched meanwhile, and a WM_CLOSE among
// them ends the wait; this keeps a processor busy. A `timeoutMs` of 0 starts the program and does
// not look for the mutex.
StartResult StartProcessAndWaitForMutex(const wchar_t* exePath, const wchar_t* arguments,
                                        bool pumpMessages, const wchar_t* mutexName,
                                        DWORD timeoutMs);

}  // namespace kelvo
