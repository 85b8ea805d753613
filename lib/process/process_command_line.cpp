#include "lib/process/process_command_line.h"

#include <winternl.h>

#include <cstddef>
#include <cstdint>

#include "lib/platform/internal/windows_version.h"
#include "lib/platform/module.h"

namespace kelvo {

namespace {

// The part of the process environment block (PEB) that ReadParameters reads. The pointer to the
// process parameters is read from offset 0x18, although a 64-bit PEB (winternl.h) has it at offset
// 0x20: see process_command_line.h.
struct EnvironmentBlock {
  std::byte before[0x18];
  const void* parameters;
  std::byte behind[0x10];
};
static_assert(sizeof(EnvironmentBlock) == 48);

struct ProcessParameters {
  std::byte before[0x70];
  std::uint16_t commandLineBytes;
  std::byte capacity[6];
  const void* commandLine;
  std::byte behind[0x70];
};
static_assert(sizeof(ProcessParameters) == 240);

static_assert(sizeof(PROCESS_BASIC_INFORMATION) == 48 &&
              offsetof(PROCESS_BASIC_INFORMATION, PebBaseAddress) == 8);

// The address of NtQueryInformationProcess. GetProcessCommandLine looks up the address before each
// attempt to read the other process.
decltype(&::NtQueryInformationProcess) queryProcess = nullptr;

// Returns the number of bytes read, or 0 on failure.
SIZE_T Read(HANDLE process, const void* address, void* content, SIZE_T size) {
  SIZE_T read = 0;
  return ReadProcessMemory(process, address, content, size, &read) != FALSE ? read : 0;
}

bool ReadParameters(HANDLE process, ProcessParameters& parameters) {
  PROCESS_BASIC_INFORMATION basic{};
  if (queryProcess(process, ProcessBasicInformation, &basic, sizeof(basic), nullptr) != 0) {
    return false;
  }
  EnvironmentBlock block{};
  return Read(process, basic.PebBaseAddress, &block, sizeof(block)) != 0 &&
         Read(process, block.parameters, &parameters, sizeof(parameters)) != 0;
}

}  // namespace

DWORD GetProcessCommandLine(HANDLE process, void* buffer, DWORD bufferBytes) {
  const OSVERSIONINFOW version = internal::QueryWindowsVersion();
  if (internal::IsNtAtLeast(version, 6, 1) || !internal::IsNtAtLeast(version, 0, 0)) {
    return 0;
  }
  queryProcess = KELVO_FIND_FUNCTION(GetModuleHandleW(L"ntdll.dll"), NtQueryInformationProcess);
  ProcessParameters parameters{};
  if (queryProcess == nullptr || !ReadParameters(process, parameters) ||
      bufferBytes < parameters.commandLineBytes) {
    return 0;
  }
  return static_cast<DWORD>(
      Read(process, parameters.commandLine, buffer, parameters.commandLineBytes));
}

}  // namespace kelvo
