#pragma once

#include <windows.h>

namespace kelvo {

// Copies the command line of another process, UTF-16 without a terminator, into `buffer` and
// returns the number of bytes copied. `process` needs PROCESS_QUERY_INFORMATION and
// PROCESS_VM_READ. Returns 0 when `bufferBytes` is less than the command line's length in bytes,
// when NtQueryInformationProcess is missing or fails, or when a read fails, which may leave part of
// the command line in `buffer`.
//
// Reads the process parameters from offset 0x18 of the process environment block (PEB), which
// NtQueryInformationProcess (looked up at run time) finds. In a 64-bit process, they are usually at
// 0x20; what is copied is then not the command line. On Windows 7 and later, on Windows 9x, and
// when GetVersionExW fails, returns 0 without reading the process.
DWORD GetProcessCommandLine(HANDLE process, void* buffer, DWORD bufferBytes);

}  // namespace kelvo
