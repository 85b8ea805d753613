#include "lib/security/window_object_access.h"

#include "lib/security/deny_ace_removal.h"
#include "lib/security/kernel_object_access.h"
#include "lib/security/token_object_access.h"
#include "lib/security/token_privileges.h"
#include "tests/security/test_acl.h"
#include "tests/support/testing.h"

static TestAce localService;

TEST_CASE("AllowAccessToWinSta, AllowAccessToDesktop: add one explicit ACE to a DACL") {
  const WindowObjects scope;
  // In this DACL, canonical order puts the new ACE last. The results below therefore also hold on
  // Wine, whose AddAce ignores the index and appends.
  const std::wstring before = L"D:(D;;CC;;;LS)(D;;CC;;;WD)";
  WriteDacl(scope.station, before);
  WriteDacl(scope.desktop, before);
  REPLACE(SetSecurityInfo, [](auto original, auto object, auto type, auto... rest) {
    CHECK(type == SE_WINDOW_OBJECT);
    return original(object, type, rest...);
  });
  for (int time = 0; time < 2; ++time) {
    CHECK(AllowAccessToWinSta(&localService.sid, scope.station) == TRUE);
    CHECK(AllowAccessToDesktop(&localService.sid, scope.desktop) == TRUE);
    CHECK(ReadDacl(scope.station) == before + kAllOfStation + L"LS)");
    CHECK(ReadDacl(scope.desktop) == before + kAllOfDesktop + L"LS)");
  }
  WriteDacl(scope.desktop, L"D:(D;;CC;;;WD)(A;;CC;;;WD)(A;ID;CC;;;BA)");
  std::vector<DWORD> indices;
  REPLACE(AddAce, [&](auto original, auto acl, auto revision, DWORD index, auto... rest) {
    indices.push_back(index);
    return original(acl, revision, index, rest...);
  });
  CHECK(AllowAccessToDesktop(&localService.sid, scope.desktop) == TRUE);
  CHECK(indices == std::vector<DWORD>{MAXDWORD, MAXDWORD, MAXDWORD, 1});
  WriteDacl(scope.desktop, L"none");
  CHECK(AllowAccessToDesktop(&localService.sid, scope.desktop) == TRUE);
  CHECK(ReadDacl(scope.desktop) == L"none");
}

TEST_CASE("AllowAccessToDesktop: uses the heap if CalculateACLSize returns over 1,008") {
  const WindowObjects scope;
  int allocated = 0, freed = 0;
  COUNT_CALLS(HeapAlloc, allocated);
  COUNT_CALLS(LocalFree, freed);
  for (const std::size_t count : {48U, 49U}) {
    const TestAcl list(std::vector<TestAce>(count, {.mask = 2}));
    SetSecurityInfo(scope.desktop, SE_WINDOW_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr,
                    list.acl, nullptr);
    allocated = freed = 0;
    CHECK(AllowAccessToDesktop(&localService.sid, scope.desktop) == TRUE);
    CHECK_BOTH(allocated == (count == 49 ? 1 : 0), freed == 1);
    CHECK(ReadDacl(scope.desktop).ends_with(L"(A;;DC;;;LS)" + kAllOfDesktop + L"LS)"));
  }
}

TEST_CASE("DeleteDenyACEofObject: removes all deny ACEs for the SID, except one at index 0") {
  const WindowObjects scope;
  const wchar_t* const cases[][2] = {
      {L"D:(A;;CC;;;WD)(D;;CC;;;LS)(D;;DC;;;LS)(D;;CC;;;NS)(D;ID;CC;;;LS)(A;;CC;;;LS)",
       L"D:(A;;CC;;;WD)(D;;CC;;;NS)(A;;CC;;;LS)"},
      {L"D:(D;;CC;;;LS)(D;;CC;;;LS)", L"D:(D;;CC;;;LS)"},
      {L"none", L"none"}};
  for (const auto& [before, after] : cases) {
    WriteDacl(scope.desktop, before);
    CHECK(DeleteDenyACEofObject(&localService.sid, scope.desktop, SE_WINDOW_OBJECT) == TRUE);
    CHECK(ReadDacl(scope.desktop) == after);
  }
  WriteDacl(scope.desktop, L"D:");
  CHECK(DeleteDenyACEofObject(&localService.sid, scope.desktop, SE_WINDOW_OBJECT) == FALSE);
}

TEST_CASE("AllowTokenFullAccessToObject: the type name selects desktop or station rights") {
  const WindowObjects scope;
  const OwnedKernelObject event(CreateEventW(nullptr, FALSE, FALSE, nullptr));
  WriteDacl(event.get(), L"D:");
  CHECK(ModifySecurity(event.get(), 2) == TRUE);
  const std::wstring granted = ReadDacl(event.get());
  const std::wstring user = granted.substr(granted.rfind(L';') + 1);
  CHECK(granted == L"D:(A;;DC;;;" + user);
  CHECK(ModifySecurity(event.get(), 4) == TRUE);
  CHECK(ReadDacl(event.get()).find(L"DC") != std::wstring::npos);
  const std::wstring denied = L"D:(D;;CC;;;LS)(D;;CC;;;WD)(D;;CC;;;NS)(D;;CC;;;" + user;
  const std::wstring others = L"D:(D;;CC;;;LS)(D;;CC;;;NS)";
  const OwnedKernelObject token = OwnToken();
  const wchar_t* const names[] = {L"Desktop", L"a DESK", L"WinStat", L"des", nullptr};
  for (const wchar_t* const& name : names) {
    WriteDacl(scope.desktop, denied);
    CHECK(AllowTokenFullAccessToObject(token.get(), scope.desktop, SE_WINDOW_OBJECT, name) == TRUE);
    CHECK(ReadDacl(scope.desktop) ==
          others + (&name - names < 2 ? kAllOfDesktop : kAllOfStation) + user);
  }
  WriteDacl(event.get(), denied);
  CHECK(AllowTokenFullAccessToObject(token.get(), event.get(), SE_KERNEL_OBJECT, L"") == FALSE);
  CHECK(ReadDacl(event.get()) == others);
}

TEST_CASE("CreateTokenPriv: skips privileges that this system does not support") {
  const LPCWSTR names[] = {L"SeNoSuch", L"SeDebugPrivilege", L"", L"SeTcbPrivilege", nullptr};
  DWORD count = 0;
  const OwnedLocalMemory<TOKEN_PRIVILEGES> set(CreateTokenPriv(&count, names, FALSE));
  REQUIRE((count == 2 && set.get()->PrivilegeCount == 2));
  CHECK(LocalSize(set.get()) == 4 + 12 * count);
  const LUID_AND_ATTRIBUTES* const privileges = set.get()->Privileges;
  CHECK_BOTH(privileges[0].Luid.LowPart == 20, privileges[1].Luid.LowPart == 7);
  CHECK(privileges[1].Attributes == 3);
}
