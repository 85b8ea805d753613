#include <windows.h>

#include <string>

#include "tests/support/captured_output.h"
#include "tests/support/catch.h"
#include "tests/support/replaced_import.h"
#include "tool/driver_privilege.h"

namespace kelvo::test {

TEST_CASE("each failing call of the privilege step is told with its code, in one wording") {
  enum Call { kOpen, kLookup, kAdjust, kNone };
  struct Row {
    Call failing;
    DWORD error;
    std::string output;
  };
  const Row rows[] = {
      {kOpen, ERROR_ACCESS_DENIED, "ERR: OpenProcessToken failed, err = 00000005\r\n"},
      {kLookup, ERROR_NO_SUCH_PRIVILEGE, "ERR: OpenProcessToken failed, err = 00000521\r\n"},
      {kAdjust, ERROR_NOT_ALL_ASSIGNED, "ERR: OpenProcessToken failed, err = 00000514\r\n"},
      {kNone, ERROR_SUCCESS, ""},
  };
  for (const Row& row : rows) {
    int open = 0;
    const auto opened = KELVO_REPLACE_IMPORT(
        OpenProcessToken, [&](auto* original, HANDLE process, DWORD access, HANDLE* token) {
          CHECK(access == 0x28);
          SetLastError(row.error);
          open += row.failing == kOpen ? 0 : 1;
          return row.failing == kOpen ? FALSE : original(process, access, token);
        });
    const auto lookedUp = KELVO_REPLACE_IMPORT(
        LookupPrivilegeValueW, [&](auto* original, LPCWSTR system, LPCWSTR name, LUID* id) {
          CHECK((system == nullptr && std::wstring(name) == L"SeLoadDriverPrivilege"));
          const BOOL found = row.failing == kLookup ? FALSE : original(system, name, id);
          SetLastError(row.error);
          return found;
        });
    const auto adjusted = KELVO_REPLACE_IMPORT(
        AdjustTokenPrivileges, [&](auto*, HANDLE, BOOL disableAll, PTOKEN_PRIVILEGES privileges,
                                   DWORD length, auto* previous, DWORD* previousLength) {
          CHECK((disableAll == FALSE && length == 16 && previous == nullptr &&
                 previousLength == nullptr));
          CHECK((privileges->PrivilegeCount == 1 && privileges->Privileges[0].Attributes == 2));
          SetLastError(row.error);
          // Only the last error counts.
          return row.failing == kNone ? FALSE : TRUE;
        });
    const auto closed = KELVO_REPLACE_IMPORT(CloseHandle, [&](auto* original, HANDLE handle) {
      --open;
      SetLastError(ERROR_INVALID_HANDLE);
      return original(handle);
    });
    std::string output;
    bool enabled = false;
    {
      const CapturedOutput captured;
      enabled = EnableLoadDriverPrivilege();
      CHECK(open == 0);
      output = captured.Text();
    }
    CHECK(output == row.output);
    CHECK(enabled == (row.failing == kNone));
  }
}

}  // namespace kelvo::test
