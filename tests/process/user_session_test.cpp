#include "lib/process/user_session.h"

#include <wtsapi32.h>

#include "lib/process/remote_client.h"
#include "lib/process/shutdown_privilege.h"
#include "lib/sysinfo/computer_name.h"
#include "tests/support/shown_arguments.h"
#include "tests/support/testing.h"

TEST_CASE("the shutdown privilege is enabled when the call and the last error say so") {
  for (const auto& [answer, error] : {std::pair{TRUE, 0UL}, {TRUE, 1300UL}, {FALSE, 0UL}}) {
    REPLACE(AdjustTokenPrivileges, [=](auto, auto, auto, TOKEN_PRIVILEGES* asked, auto...) {
      CHECK(Shown(asked) == "SeShutdownPrivilege attributes 2");
      SetLastError(error);
      return answer;
    });
    CHECK(EnableShutdownPrivilege() == (answer == TRUE && error == 0));
  }
}

TEST_CASE("a Windows without the functions has no console session and no tokens") {
  const ReplacedExport console("WTSGetActiveConsoleSessionId", nullptr);
  const ReplacedExport query("WTSQueryUserToken", nullptr);
  HANDLE token = INVALID_HANDLE_VALUE;
  CHECK_BOTH(GetActiveConsoleSessionId() == 0, !QueryUserTokenOfSession(0, &token));
  CHECK(!token);
}

TEST_CASE("a remote client has another name than this computer") {
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
  for (const bool canFree : {true, false}) {
    auto* const release = +[](void*) { --textsOut; };
    const ReplacedExport freed("WTSFreeMemory", canFree ? release : nullptr);
    for (const auto& [name, answer] :
         {std::pair{L"ELSEWHERE-AND-CUT", 0}, {L"", -1}, {own.c_str(), -1}, {L"!", -1}}) {
      clientName = name;
      CHECK_BOTH(GetRemoteClientName(buffer, 16) == (canFree ? answer : -1), textsOut == 0);
      CHECK((!canFree || answer < 0 || buffer == std::wstring(name, 15)));
    }
  }
}
