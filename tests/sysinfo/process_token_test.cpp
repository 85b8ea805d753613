#include "lib/sysinfo/administrators.h"
#include "lib/sysinfo/vista_elevation.h"
#include "tests/support/testing.h"

TEST_CASE("an administrator is whose token lists the group") {
  const std::tuple<DWORD, DWORD, WELL_KNOWN_SID_TYPE, BOOL, bool> rows[] = {
      {1, ERROR_ACCESS_DENIED, WinBuiltinUsersSid, FALSE, true},
      {2, ERROR_ACCESS_DENIED, WinBuiltinAdministratorsSid, TRUE, false},
      {2, ERROR_NO_TOKEN, WinBuiltinAdministratorsSid, TRUE, true},
      {2, ERROR_NO_TOKEN, WinBuiltinAdministratorsSid, FALSE, false},
      {2, ERROR_NO_TOKEN, WinBuiltinUsersSid, TRUE, false}};
  for (const auto& [platform, threadError, group, fits, answer] : rows) {
    const auto windows = PretendWindows(platform, 4, 0);
    REPLACE(OpenThreadToken, [&](auto...) { return SetLastError(threadError), FALSE; });
    BYTE sid[SECURITY_MAX_SID_SIZE];
    DWORD sidSize = sizeof(sid);
    CreateWellKnownSid(group, nullptr, sid, &sidSize);
    REPLACE(GetTokenInformation, [&](auto, auto, auto, void* data, DWORD size, auto) {
      *static_cast<TOKEN_GROUPS*>(data) = {1, {{sid, SE_GROUP_USE_FOR_DENY_ONLY}}};
      return size == 1024 ? fits : FALSE;
    });
    CHECK(IsAdmin() == answer);
  }
}

TEST_CASE("elevation is known from Vista on") {
  for (const auto& [major, type] : {std::pair(5U, 2), {6U, 1}, {6U, 2}, {6U, 3}}) {
    const auto windows = PretendWindows(2, major, 2);
    REPLACE(GetTokenInformation, [&](auto, auto, int kind, void* data, DWORD size, auto) {
      *static_cast<int*>(data) = kind == TokenElevationType ? type : type / 2;
      return size == 4;
    });
    const int known = major == 6 ? type : 0;
    CHECK(IsVistaProcessElevationTypeDefault() == (known == 1));
    CHECK(IsVistaProcessElevationTypeFull() == (known == 2));
    CHECK(IsVistaProcessElevationTypeLimited() == (known == 3));
    CHECK(IsVistaProcessElevated() == (known >= 2));
  }
}
