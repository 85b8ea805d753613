#include "tool/driver_privilege.h"

#include "tests/support/failing_call.h"
#include "tests/support/testing.h"

TEST_CASE("each failing call of the privilege step is told with its code, in one wording") {
  const std::string line = "ERR: OpenProcessToken failed, err = ";
  // The call that fails, RegDeleteValueW for none; the last error behind a successful adjustment.
  const std::tuple<FailingCall, DWORD, std::string> rows[] = {
      {SETS_LAST_ERROR(OpenProcessToken), 0, line + "000004D2\r\n"},
      {SETS_LAST_ERROR(LookupPrivilegeValueW), 0, line + "000004D2\r\n"},
      {SETS_LAST_ERROR(RegDeleteValueW), ERROR_NOT_ALL_ASSIGNED, line + "00000514\r\n"},
      {SETS_LAST_ERROR(RegDeleteValueW), ERROR_SUCCESS, ""}};
  for (const auto& [failing, adjusted, output] : rows) {
    int open = 0;
    std::string written;
    REPLACE(OpenProcessToken, [&](auto, auto, DWORD access, HANDLE* token) {
      CHECK(access == 0x28);
      return *token = &open, ++open == 1;
    });
    REPLACE(LookupPrivilegeValueW, [&](auto, LPCWSTR system, LPCWSTR name, auto) {
      CHECK((system == nullptr && name == std::wstring(L"SeLoadDriverPrivilege")));
      return TRUE;
    });
    REPLACE(AdjustTokenPrivileges,
            [&](auto, auto, BOOL disableAll, auto* set, DWORD length, auto* previous, auto) {
              CHECK((disableAll == FALSE && length == 16 && previous == nullptr));
              CHECK((set->PrivilegeCount == 1 && set->Privileges[0].Attributes == 2));
              return SetLastError(adjusted), TRUE;
            });
    REPLACE(CloseHandle, [&](auto original, HANDLE handle) {
      open -= handle == &open ? 1 : 0;
      return handle == &open ? SetLastError(ERROR_INVALID_HANDLE), TRUE : original(handle);
    });
    REPLACE(WriteFile, [&](auto, auto, auto bytes, DWORD size, DWORD* done, auto) {
      written.append(static_cast<const char*>(bytes), size);
      return (*done = size) != 0;
    });
    bool isEnabled = false;
    failing.run(1, false, [&] { isEnabled = EnableLoadDriverPrivilege(); });
    CHECK((isEnabled == output.empty() && open == 0 && written == output));
  }
}
