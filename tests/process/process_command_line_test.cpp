#include "lib/process/process_command_line.h"

#include <winternl.h>

#include <tuple>
#include <utility>
#include <vector>

#include "tests/support/catch.h"
#include "tests/support/replaced_import.h"

namespace kelvo {

TEST_CASE("a command line is read where a process of an old NT has it") {
  const wchar_t text[] = L"a.exe /b";
  static const void* block[6] = {};
  const void* parameters[30] = {};
  block[0x18 / 8] = parameters;
  parameters[0x70 / 8] = reinterpret_cast<const void*>(16);
  parameters[0x78 / 8] = text;
  const auto find = +[](HANDLE, PROCESSINFOCLASS kind, const void** basic, ULONG size, ULONG*) {
    basic[1] = block;
    return kind == 0 && size == 48 ? 0L : 1L;
  };
  const std::tuple<DWORD, DWORD, decltype(find), int, DWORD, DWORD> rows[] = {
      // platform, minor version, query, reads that succeed, buffer in bytes, answer
      {2, 0, find, 3, 16, 16}, {2, 0, find, 3, 15, 0},    {2, 0, find, 2, 16, 0},
      {2, 0, find, 1, 16, 0},  {2, 0, find, 0, 16, 0},    {2, 1, find, 3, 16, 0},
      {1, 0, find, 3, 16, 0},  {2, 0, nullptr, 3, 16, 0},
  };
  for (const auto& [platform, minor, query, good, size, answer] : rows) {
    CAPTURE(platform, minor, good, size);
    const auto version = KELVO_REPLACE_IMPORT(GetVersionExW, [&](auto, OSVERSIONINFOW* record) {
      *record = {276, 6, minor, 0, platform, L""};
      return TRUE;
    });
    std::vector<SIZE_T> reads;
    const auto read = KELVO_REPLACE_IMPORT(
        ReadProcessMemory,
        [&](auto original, auto process, auto from, auto to, auto count, auto n) {
          reads.push_back(count);
          return std::cmp_less_equal(reads.size(), good) ? original(process, from, to, count, n)
                                                         : FALSE;
        });
    const test::ReplacedExport lookup("NtQueryInformationProcess", reinterpret_cast<void*>(query));
    std::wstring buffer(9, L'.');
    CHECK(GetProcessCommandLine(GetCurrentProcess(), buffer.data(), size) == answer);
    CHECK(buffer == (answer > 0 ? L"a.exe /b." : L"........."));
    if (good == 3 && size == 16) {
      CHECK(reads == (answer > 0 ? std::vector<SIZE_T>{48, 240, 16} : std::vector<SIZE_T>{}));
    }
  }
}

}  // namespace kelvo
