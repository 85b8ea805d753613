#include "tool/driver_privilege.h"

#include <windows.h>

#include <string>
#include <tuple>

#include "tests/support/captured_output.h"
#include "tests/support/catch.h"
#include "tests/support/replaced_import.h"

namespace kelvo::test {

TEST_CASE("each failing call of the privilege step is told with its code, in one wording") {
  enum Call { kOpen, kLookup, kAdjust, kNone };
  const std::string line = "ERR: OpenProcessToken failed, err = ";
  const std::tuple<Call, DWORD, std::string> rows[] = {
      {kOpen, ERROR_ACCESS_DENIED, line + "00000005\r\n"},
      {kLookup, ERROR_NO_SUCH_PRIVILEGE, line + "00000521\r\n"},
      {kAdjust, ERROR_NOT_ALL_ASSIGNED, line + "00000514\r\n"},
      {kNone, ERROR_SUCCESS, ""}};
  for (const auto& [failing, error, output] : rows) {
    int open = 0;
    const auto answer = [&](Call call, BOOL done) {
      SetLastError(error);
      return failing == call ? FALSE : done;
    };
    const auto opened =
        KELVO_REPLACE_IMPORT(OpenProcessToken, [&](auto*, HANDLE, DWORD access, HANDLE* token) {
          CHECK(access == 0x28);
          if (failing != kOpen) {
            *token = &open;
            ++open;
          }
          return answer(kOpen, TRUE);
        });
    const auto lookedUp = KELVO_REPLACE_IMPORT(
        LookupPrivilegeValueW, [&](auto*, LPCWSTR system, LPCWSTR name, auto*) {
          CHECK((system == nullptr && std::wstring(name) == L"SeLoadDriverPrivilege"));
          return answer(kLookup, TRUE);
        });
    const auto adjusted = KELVO_REPLACE_IMPORT(
        AdjustTokenPrivileges,
        [&](auto*, HANDLE, BOOL disableAll, auto* set, DWORD length, auto* previous, auto*) {
          CHECK((disableAll == FALSE && length == 16 && previous == nullptr));
          CHECK((set->PrivilegeCount == 1 && set->Privileges[0].Attributes == 2));
          // Only the last error counts.
          return answer(kNone, TRUE);
        });
    const auto closed = KELVO_REPLACE_IMPORT(CloseHandle, [&](auto* original, HANDLE handle) {
      if (handle != &open) {
        return original(handle);
      }
      --open;
      SetLastError(ERROR_INVALID_HANDLE);
      return TRUE;
    });
    const CapturedOutput captured;
    const bool enabled = EnableLoadDriverPrivilege();
    const std::string written = captured.Text();
    CHECK(written == output);
    CHECK(enabled == (failing == kNone));
    CHECK(open == 0);
  }
}

}  // namespace kelvo::test
