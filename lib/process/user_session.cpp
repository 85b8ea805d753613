#include "lib/process/user_session.h"

#include <wtsapi32.h>

#include "lib/platform/module.h"
#include "lib/sysinfo/windows_release.h"

namespace kelvo {

DWORD GetActiveConsoleSessionId() {
  if (!IsWinXP()) {
    return 0;
  }
  auto* const getSession =
      KELVO_FIND_FUNCTION(GetModuleHandleW(L"Kernel32.dll"), WTSGetActiveConsoleSessionId);
  return getSession != nullptr ? getSession() : 0;
}

bool QueryUserTokenOfSession(DWORD sessionId, HANDLE* token) {
  *token = nullptr;
  if (!IsWinXP()) {
    return false;
  }
  const OwnedModule library(LoadLibraryW(L"Wtsapi32.dll"));
  auto* const queryToken = KELVO_FIND_FUNCTION(library.get(), WTSQueryUserToken);
  return queryToken != nullptr && queryToken(sessionId, token) != FALSE;
}

}  // namespace kelvo
