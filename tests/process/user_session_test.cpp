#include "lib/process/user_session.h"

#include <wtsapi32.h>

#include "lib/process/remote_client.h"
#include "lib/process/shutdown_privilege.h"
#include "lib/sysinfo/computer_name.h"
#include "tests/support/testing.h"

TEST_CASE("EnableShutdownPrivilege: fails if AdjustTokenPrivileges sets a nonzero last error") {
  for (const DWORD error : {0UL, 1300UL}) {
    REPLACE(AdjustTokenPrivileges, [=](auto...) {
      SetLastError(error);
      return TRUE;
    });
    CHECK(EnableShutdownPrivilege() == (error == 0));
  }
}

TEST_CASE(
    "GetActiveConsoleSessionId, QueryUserTokenOfSession: return 0 or false for missing exports") {
  const ReplacedExport console("WTSGetActiveConsoleSessionId", nullptr);
  const ReplacedExport query("WTSQueryUserToken", nullptr);
  HANDLE token = INVALID_HANDLE_VALUE;
  CHECK_BOTH(GetActiveConsoleSessionId() == 0, !QueryUserTokenOfSession(0, &token));
  CHECK(!token);
}

TEST_CASE("GetRemoteClientName: returns -1 for an empty name, this computer's name, an exception") {
  static const wchar_t* clientName = nullptr;
  static int textsOut = 0;
  const ReplacedExport query(
      "WTSQuerySessionInformationW",
      +[](HANDLE, DWORD, WTS_INFO_CLASS, LPWSTR* name, DWORD*) -> BOOL {
        *name = const_cast<wchar_t*>(clientName);
        ++textsOut;
        return *clientName != L'!' ? TRUE : throw 1;
      });
  WString own = GetComputerNetbiosName();
  CharLowerW(own.data());
  wchar_t buffer[16];
  const ReplacedExport freed("WTSFreeMemory", +[](void*) { --textsOut; });
  for (const auto& [name, answer] :
       {std::pair{L"ELSEWHERE-AND-CUT", 0}, {L"", -1}, {own.c_str(), -1}, {L"!", -1}}) {
    clientName = name;
    CHECK_BOTH(GetRemoteClientName(buffer, 16) == answer, textsOut == 0);
    CHECK((answer < 0 || buffer == std::wstring(name, 15)));
  }
}
