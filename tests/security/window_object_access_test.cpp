#include "lib/security/window_object_access.h"

#include "lib/platform/owned.h"
#include "lib/security/deny_ace_removal.h"
#include "lib/security/kernel_object_access.h"
#include "lib/security/token_object_access.h"
#include "lib/security/token_privileges.h"
#include "tests/security/test_acl.h"
#include "tests/support/catch.h"
#include "tests/support/dacl_text.h"
#include "tests/support/desktop_scope.h"
#include "tests/support/replaced_import.h"

namespace kelvo {

using test::ReadDacl;
using test::WriteDacl;

namespace {

test::TestAce localService;
const std::wstring kAllOfStation = L"(A;;0xf037f;;;";
const std::wstring kAllOfDesktop = L"(A;;CCDCLCSWRPWPDTLOCRSDRCWDWO;;;";

}  // namespace

TEST_CASE("an explicit entry is granted once, and only where there is a list") {
  const test::DesktopScope scope(L"kelvo security test", L"kelvo desktop");
  std::wstring many = L"D:";
  for (int count = 0; count < 60; ++count) {
    many += L"(D;;CC;;;WD)";
  }
  // Each ends where the entry goes: Wine's AddAce appends, whatever the index.
  const std::wstring cases[] = {L"D:(D;;CC;;;LS)(D;;CC;;;WD)", L"D:", many};
  for (const std::wstring& before : cases) {
    WriteDacl(scope.Station(), before);
    WriteDacl(scope.Desktop(), before);
    for (int time = 0; time < 2; ++time) {
      CHECK(AllowAccessToWinSta(&localService.sid, scope.Station()) == TRUE);
      CHECK(AllowAccessToDesktop(&localService.sid, scope.Desktop()) == TRUE);
      CHECK(ReadDacl(scope.Station()) == before + kAllOfStation + L"LS)");
      CHECK(ReadDacl(scope.Desktop()) == before + kAllOfDesktop + L"LS)");
    }
  }
  WriteDacl(scope.Desktop(), L"D:(D;;CC;;;WD)(A;;CC;;;WD)(A;ID;CC;;;BA)");
  DWORD lastIndex = MAXDWORD;
  const auto adding = KELVO_REPLACE_IMPORT(
      AddAce, [&](auto original, ACL* acl, DWORD revision, DWORD index, auto... rest) {
        lastIndex = index;
        return original(acl, revision, index, rest...);
      });
  CHECK(AllowAccessToDesktop(&localService.sid, scope.Desktop()) == TRUE);
  CHECK(lastIndex == 1);
  WriteDacl(scope.Desktop(), L"none");
  CHECK(AllowAccessToDesktop(&localService.sid, scope.Desktop()) == TRUE);
  CHECK(ReadDacl(scope.Desktop()) == L"none");
}

TEST_CASE("deny entries for the SID go, all but one at index 0") {
  const test::DesktopScope scope(L"kelvo security test", L"kelvo desktop");
  const wchar_t* const cases[][2] = {
      {L"D:(A;;CC;;;WD)(D;;CC;;;LS)(D;;DC;;;LS)(D;;CC;;;NS)(D;ID;CC;;;LS)(A;;CC;;;LS)",
       L"D:(A;;CC;;;WD)(D;;CC;;;NS)(A;;CC;;;LS)"},
      {L"D:(D;;CC;;;LS)(D;;CC;;;LS)", L"D:(D;;CC;;;LS)"},
      {L"none", L"none"}};
  for (const auto& [before, after] : cases) {
    WriteDacl(scope.Desktop(), before);
    CHECK(DeleteDenyACEofObject(&localService.sid, scope.Desktop(), SE_WINDOW_OBJECT) == TRUE);
    CHECK(ReadDacl(scope.Desktop()) == after);
  }
  WriteDacl(scope.Desktop(), L"D:");
  CHECK(DeleteDenyACEofObject(&localService.sid, scope.Desktop(), SE_WINDOW_OBJECT) == FALSE);
}

TEST_CASE("a token's user gets the rights that the type's name asks for") {
  const test::DesktopScope scope(L"kelvo security test", L"kelvo desktop");
  OwnedKernelObject token;
  OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, token.Receive());
  const std::wstring user = test::CurrentUserSid() + L")";
  const std::wstring denied = L"D:(D;;CC;;;LS)(D;;CC;;;WD)(D;;CC;;;NS)(D;;CC;;;" + user;
  const std::pair<const wchar_t*, std::wstring> cases[] = {{L"Desktop", kAllOfDesktop},
                                                           {L"a DESK", kAllOfDesktop},
                                                           {L"WinStat", kAllOfStation},
                                                           {L"des", kAllOfStation},
                                                           {nullptr, kAllOfStation}};
  for (const auto& [typeName, all] : cases) {
    WriteDacl(scope.Desktop(), denied);
    CHECK(AllowTokenFullAccessToObject(token.get(), scope.Desktop(), SE_WINDOW_OBJECT, typeName) ==
          TRUE);
    CHECK(ReadDacl(scope.Desktop()) == L"D:(D;;CC;;;LS)(D;;CC;;;NS)" + all + user);
  }
  const OwnedKernelObject event(CreateEventW(nullptr, FALSE, FALSE, nullptr));
  WriteDacl(event.get(), denied, SE_KERNEL_OBJECT);
  CHECK(AllowTokenFullAccessToObject(token.get(), event.get(), SE_KERNEL_OBJECT, L"") == FALSE);
  CHECK(ReadDacl(event.get(), SE_KERNEL_OBJECT) == L"D:(D;;CC;;;LS)(D;;CC;;;NS)");
  CHECK(ModifySecurity(event.get(), 2) == TRUE);
  CHECK(ReadDacl(event.get(), SE_KERNEL_OBJECT).find(L"(A;;DC;;;" + user) != std::wstring::npos);
}

TEST_CASE("a privilege set holds the names that the system knows") {
  const wchar_t* const names[] = {L"SeNoSuchPrivilege", L"SeDebugPrivilege", L"", L"SeTcbPrivilege",
                                  nullptr};
  for (const BOOL useBuiltIn : {FALSE, TRUE}) {
    DWORD count = 0;
    const OwnedLocalMemory<TOKEN_PRIVILEGES> set(CreateTokenPriv(&count, names, useBuiltIn));
    REQUIRE(count == (useBuiltIn != FALSE ? 28 : 2));
    CHECK(set.get()->PrivilegeCount == count);
    CHECK(LocalSize(set.get()) == 4 + 12 * count);
    CHECK(set.get()->Privileges[count - 1].Luid.LowPart != 0);
    CHECK(set.get()->Privileges[count - 1].Attributes == 3);
  }
}

}  // namespace kelvo
