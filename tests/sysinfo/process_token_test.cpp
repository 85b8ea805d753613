#include "lib/sysinfo/administrators.h"
#include "lib/sysinfo/vista_elevation.h"
#include "tests/support/catch.h"
#include "tests/sysinfo/pretended_windows.h"

namespace kelvo {

TEST_CASE("an administrator is whose token lists the group") {
  struct Row {
    DWORD platform, threadError;
    WELL_KNOWN_SID_TYPE group;
    BOOL fits;
    bool answer;
  };
  const Row rows[] = {{1, ERROR_ACCESS_DENIED, WinBuiltinUsersSid, FALSE, true},
                      {2, ERROR_ACCESS_DENIED, WinBuiltinAdministratorsSid, TRUE, false},
                      {2, ERROR_NO_TOKEN, WinBuiltinAdministratorsSid, TRUE, true},
                      {2, ERROR_NO_TOKEN, WinBuiltinAdministratorsSid, FALSE, false},
                      {2, ERROR_NO_TOKEN, WinBuiltinUsersSid, TRUE, false}};
  for (const Row& row : rows) {
    const auto windows = test::PretendWindows(row.platform, 4, 0, L"");
    const auto thread = KELVO_REPLACE_IMPORT(
        OpenThreadToken, [&](auto...) { return SetLastError(row.threadError), FALSE; });
    BYTE sid[SECURITY_MAX_SID_SIZE];
    DWORD sidSize = sizeof(sid);
    CreateWellKnownSid(row.group, nullptr, sid, &sidSize);
    const auto groups = KELVO_REPLACE_IMPORT(
        GetTokenInformation, [&](auto, auto, auto, void* data, DWORD size, auto) -> BOOL {
          *static_cast<TOKEN_GROUPS*>(data) = {1, {{sid, SE_GROUP_USE_FOR_DENY_ONLY}}};
          return row.fits && size == 1024;
        });
    CHECK(IsAdmin() == row.answer);
  }
}

TEST_CASE("elevation is known from Vista on") {
  for (const auto [major, type] : {std::pair(5U, 2), {6U, 1}, {6U, 2}, {6U, 3}}) {
    const auto windows = test::PretendWindows(2, major, 2, L"");
    const auto token = KELVO_REPLACE_IMPORT(
        GetTokenInformation, [&](auto, auto, int kind, void* data, DWORD size, auto) -> BOOL {
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

}  // namespace kelvo
