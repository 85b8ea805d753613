#include "lib/process/user_session.h"

#include <wtsapi32.h>

#include "lib/process/remote_client.h"
#include "lib/process/shutdown_privilege.h"
#include "lib/sysinfo/computer_name.h"
#include "tests/support/catch.h"
#include "tests/support/replaced_import.h"

namespace kelvo {

using test::ReplacedExport;

namespace {
const wchar_t* clientName = nullptr;
int textsOut = 0;
}  // namespace

TEST_CASE("the shutdown privilege is enabled when the call and the last error say so") {
  CHECK(EnableShutdownPrivilege());
  for (const auto& [answer, error] : {std::pair{TRUE, 0}, {TRUE, 1300}, {FALSE, 0}}) {
    const auto adjusted = KELVO_REPLACE_IMPORT(AdjustTokenPrivileges, [=](auto...) {
      SetLastError(static_cast<DWORD>(error));
      return answer;
    });
    CHECK(EnableShutdownPrivilege() == (answer == TRUE && error == 0));
  }
  const auto denied = KELVO_REPLACE_IMPORT(OpenProcessToken, [](auto...) { return FALSE; });
  CHECK_FALSE(EnableShutdownPrivilege());
}

TEST_CASE("a Windows without the functions has no console session and no tokens") {
  const ReplacedExport one("WTSGetActiveConsoleSessionId", nullptr);
  const ReplacedExport two("WTSQueryUserToken", nullptr);
  HANDLE token = INVALID_HANDLE_VALUE;
  CHECK(GetActiveConsoleSessionId() == 0);
  CHECK((!QueryUserTokenOfSession(0, &token) && token == nullptr));
}

TEST_CASE("a remote client has another name than this computer") {
  auto* const query = +[](HANDLE, DWORD, WTS_INFO_CLASS, LPWSTR* name, DWORD*) -> BOOL {
    *name = const_cast<wchar_t*>(clientName);
    ++textsOut;
    return *clientName != L'!' ? TRUE : throw 1;
  };
  const ReplacedExport queried("WTSQuerySessionInformationW", reinterpret_cast<void*>(query));
  WString own = GetComputerNetbiosName();
  CharLowerW(own.data());
  std::array<wchar_t, 16> buffer{};
  for (const bool canFree : {true, false}) {
    auto* const freeText = canFree ? +[](void*) { --textsOut; } : nullptr;
    const ReplacedExport freed("WTSFreeMemory", reinterpret_cast<void*>(freeText));
    for (const auto& [name, answer] :
         {std::pair{L"ELSEWHERE-AND-CUT", 0}, {L"", -1}, {own.c_str(), -1}, {L"!", -1}}) {
      clientName = name;
      CHECK(GetRemoteClientName(buffer.data(), 16) == (canFree ? answer : -1));
      CHECK((!canFree || answer < 0 || buffer.data() == std::wstring(name).substr(0, 15)));
      CHECK(textsOut == 0);
    }
  }
}

}  // namespace kelvo
