#include "tool/driver_privilege.h"

#include "tests/support/testing.h"

TEST_CASE("each failing call of the privilege step is told with its code, in one wording") {
  const std::string line = "ERR: OpenProcessToken failed, err = ";
  // Which call fails, with which error.
  const std::tuple<int, DWORD, std::string> rows[] = {
      {1, ERROR_ACCESS_DENIED, line + "00000005\r\n"},
      {2, ERROR_NO_SUCH_PRIVILEGE, line + "00000521\r\n"},
      {3, ERROR_NOT_ALL_ASSIGNED, line + "00000514\r\n"},
      {0, ERROR_SUCCESS, ""}};
  for (const auto& [failing, error, output] : rows) {
    int open = 0;
    std::string written;
    const auto answer = [&](int call) { return SetLastError(error), failing != call; };
    KELVO_REPLACE(OpenProcessToken, [&](auto, auto, DWORD access, HANDLE* token) {
      CHECK(access == 0x28);
      if (failing != 1) {
        *token = &open;
        ++open;
      }
      return answer(1);
    });
    KELVO_REPLACE(LookupPrivilegeValueW, [&](auto, LPCWSTR system, LPCWSTR name, auto) {
      CHECK((system == nullptr && name == std::wstring(L"SeLoadDriverPrivilege")));
      return answer(2);
    });
    KELVO_REPLACE(AdjustTokenPrivileges,
                  [&](auto, auto, BOOL disableAll, auto* set, DWORD length, auto* previous, auto) {
                    CHECK((disableAll == FALSE && length == 16 && previous == nullptr));
                    CHECK((set->PrivilegeCount == 1 && set->Privileges[0].Attributes == 2));
                    return answer(0);  // only the last error counts
                  });
    KELVO_REPLACE(CloseHandle, [&](auto original, HANDLE handle) {
      open -= handle == &open ? 1 : 0;
      return handle == &open ? SetLastError(ERROR_INVALID_HANDLE), TRUE : original(handle);
    });
    KELVO_REPLACE(WriteFile, [&](auto, auto, auto bytes, DWORD size, DWORD* done, auto) {
      written.append(static_cast<const char*>(bytes), size);
      return (*done = size) != 0;
    });
    const bool enabled = EnableLoadDriverPrivilege();
    CHECK((enabled == (failing == 0) && open == 0 && written == output));
  }
}
