#pragma once

#include <windows.h>

namespace kelvo {

// Copies the command line of another process, UTF-16 without a terminator, into `buffer` and
// returns the number of bytes copied. `process` needs PROCESS_QUERY_INFORMATION and
// PROCESS_VM_READ. Returns 0, and has touched nothing but perhaps `buffer`, when a read fails and
// when `bufferBytes` is less than the command line's length in bytes.
//
// Offered on NT before 6.1 only: elsewhere, and so on Windows 7 and later, the answer is 0 without
// a look at the process. Rests on NtQueryInformationProcess, looked up at run time.
DWORD GetProcessCommandLine(HANDLE process, void* buffer, DWORD bufferBytes);

}  // namespace kelvo
