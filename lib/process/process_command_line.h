#pragma once

#include <windows.h>

namespace kelvo {

// Copies the command line of another process into `buffer`, as UTF-16 without a terminator, and
// returns the number of bytes copied. The handle `process` needs PROCESS_QUERY_INFORMATION and
// PROCESS_VM_READ. Returns 0 in these cases:
//   - GetVersionExW reports Windows 9x, reports Windows 7 or later, or fails. The other process is
//     then not read.
//   - `bufferBytes` is less than the command line's length in bytes.
//   - NtQueryInformationProcess (looked up at run time) is missing or fails.
//   - Reading the other process fails. A part of the command line may then be in `buffer`.
//
// NtQueryInformationProcess returns the address of the process environment block (PEB). The pointer
// to the process parameters, which contain the command line, is read from offset 0x18 of the PEB.
// A 64-bit PEB usually has that pointer at 0x20. In that case, the bytes copied are not the command
// line.
DWORD GetProcessCommandLine(HANDLE process, void* buffer, DWORD bufferBytes);

}  // namespace kelvo
