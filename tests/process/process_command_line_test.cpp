#include "lib/process/process_command_line.h"

#include <winternl.h>

#include "tests/support/testing.h"

TEST_CASE("GetProcessCommandLine: on NT before Windows 7, reads the PEB at fixed offsets") {
  static const void* block[6] = {};
  const void* parameters[30] = {};
  block[0x18 / 8] = parameters;
  parameters[0x70 / 8] = reinterpret_cast<const void*>(16);
  parameters[0x78 / 8] = L"a.exe /b";
  const auto find = +[](HANDLE, PROCESSINFOCLASS kind, const void** basic, ULONG size, ULONG*) {
    basic[1] = block;
    return kind == 0 && size == 48 ? 0L : 1L;
  };
  using Query = decltype(find);
  const std::tuple<DWORD, DWORD, Query, std::size_t, DWORD, DWORD> rows[] = {
      {2, 0, find, 3, 16, 16}, {2, 0, find, 3, 15, 0},   {2, 0, find, 2, 16, 0},
      {2, 0, find, 1, 16, 0},  {2, 0, find, 0, 16, 0},   {2, 1, find, 3, 16, 0},
      {1, 0, find, 3, 16, 0},  {2, 0, nullptr, 3, 16, 0}};
  for (const auto& [platform, minor, query, good, size, answer] : rows) {
    INFO("platform ", platform, ", minor ", minor, ", successful reads ", good, ", bytes ", size);
    const auto windows = PretendWindows(platform, 6, minor);
    std::vector<SIZE_T> reads;
    REPLACE(ReadProcessMemory,
            [&](auto original, auto process, auto from, auto to, auto count, auto... rest) {
              reads.push_back(count);
              return reads.size() <= good ? original(process, from, to, count, rest...) : FALSE;
            });
    const ReplacedExport lookup("NtQueryInformationProcess", query);
    std::wstring buffer(9, L'.');
    CHECK(GetProcessCommandLine(GetCurrentProcess(), buffer.data(), size) == answer);
    CHECK(buffer == (answer > 0 ? L"a.exe /b." : L"........."));
    CHECK((answer == 0 || reads == std::vector<SIZE_T>{48, 240, 16}));
  }
}
