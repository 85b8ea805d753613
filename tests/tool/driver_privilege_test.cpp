#include "tool/driver_privilege.h"

#include "tests/support/shown_arguments.h"
#include "tests/support/testing.h"

TEST_CASE("EnableLoadDriverPrivilege: fails if AdjustTokenPrivileges sets ERROR_NOT_ALL_ASSIGNED") {
  struct Row {
    DWORD error;
    bool isEnabled;
    std::string output;
  };
  for (const auto& [error, isEnabled, output] :
       {Row{ERROR_NOT_ALL_ASSIGNED, false, "ERR: OpenProcessToken failed, err = 00000514\r\n"},
        Row{ERROR_SUCCESS, true, ""}}) {
    std::string written;
    REPLACE(AdjustTokenPrivileges, [&](auto, auto, auto, TOKEN_PRIVILEGES* asked, auto...) {
      CHECK(Shown(asked) == "SeLoadDriverPrivilege attributes 2");
      SetLastError(error);
      return TRUE;
    });
    // The last error of AdjustTokenPrivileges must be read before CloseHandle changes it.
    REPLACE(CloseHandle, [&](auto original, HANDLE handle) {
      original(handle);
      SetLastError(ERROR_INVALID_HANDLE);
      return TRUE;
    });
    REPLACE(WriteFile, [&](auto, auto, auto bytes, DWORD size, DWORD* done, auto) {
      written.append(static_cast<const char*>(bytes), *done = (size + 1) / 2);
      return TRUE;
    });
    CHECK_BOTH(EnableLoadDriverPrivilege() == isEnabled, written == output);
  }
}
