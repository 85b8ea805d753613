#pragma once

#include <windows.h>

namespace kelvo {

// Was meant to copy the command line of another process into `buffer`, as UTF-16 without a
// terminator. Does not work: see the last paragraph. Returns the number of bytes copied. The handle
// `process` needs the access rights PROCESS_QUERY_INFORMATION and PROCESS_VM_READ. Returns 0 in
// these cases:
//   - GetVersionExW fails, reports Windows 9x, or reports Windows 7 or later. GetProcessCommandLine
//     then does not try to read the other process.
//   - `bufferBytes` is less than the number of bytes to copy, which the function reads from the
//     other process.
//   - NtQueryInformationProcess (looked up at run time) is missing or fails.
//   - ReadProcessMemory fails. `buffer` may then contain some bytes of the other process's memory.
//
// NtQueryInformationProcess returns the address of the process environment block (PEB). A pointer
// in the PEB leads to the process parameters, which contain the command line. GetProcessCommandLine
// reads this pointer from offset 0x18, but in a 64-bit PEB (winternl.h) it is at offset 0x20.
// Therefore, any bytes that GetProcessCommandLine copies are not the command line.
DWORD GetProcessCommandLine(HANDLE process, void* buffer, DWORD bufferBytes);

}  // namespace kelvo
