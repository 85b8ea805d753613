#pragma once

#include <windows.h>

namespace kelvo {

// Copies the command line of another process, UTF-16 without a terminator, into `buffer` and
// returns the number of bytes copied. `process` needs PROCESS_QUERY_INFORMATION and
// PROCESS_VM_READ. Returns 0 when a read fails, which may leave part of the command line in
// `buffer`, and when `bufferBytes` is less than the command line's length in bytes.
//
// Works on NT before 6.1 only: on Windows 7 and later, and on Windows 9x, it returns 0 without
// looking at the process. Uses NtQueryInformationProcess, looked up at run time.
DWORD GetProcessCommandLine(HANDLE process, void* buffer, DWORD bufferBytes);

}  // namespace kelvo
