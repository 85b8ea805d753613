#include "lib/security/access_control_entry.h"
#include "lib/security/access_control_list.h"
#include "lib/security/canonical_order.h"
#include "lib/security/deny_ace_removal.h"
#include "lib/security/kernel_object_access.h"
#include "lib/security/token_information.h"
#include "lib/security/token_object_access.h"
#include "lib/security/token_privileges.h"
#include "lib/security/window_object_access.h"
#include "tests/security/recorded_failures.h"

TEST_CASE("each failing call has its message, then the operation its own") {
  const WindowObjects scope;
  const OwnedKernelObject token = OwnToken();
  const OwnedKernelObject event(CreateEventW(nullptr, FALSE, FALSE, nullptr));
  // More than fits on the stack, and enough to have all calls made.
  const TestAcl many(std::vector<TestAce>(51));
  const TestAcl few(std::vector<TestAce>(3));
  TestAce ace{.mask = 9};
  TestAce audit{.type = SYSTEM_AUDIT_ACE_TYPE};
  const TestAcl list({{.type = 1}, audit});
  SID invalid{};
  const PSID sids[] = {&invalid};
  const wchar_t* const names[] = {L"SeNoSuchPrivilege", nullptr};
  DWORD count = 0;
  const auto allowAll = [&](HANDLE object, SE_OBJECT_TYPE type, const wchar_t* name) {
    return AllowTokenFullAccessToObject(token.get(), object, type, name);
  };
  const std::wstring seen = RecordFailures(
      {SETS_LAST_ERROR(GetTokenInformation), SETS_LAST_ERROR(HeapAlloc),
       SETS_LAST_ERROR(LocalAlloc), SETS_LAST_ERROR(CopySid), RETURNS_ERROR(GetSecurityInfo),
       SETS_LAST_ERROR(GetAclInformation), SETS_LAST_ERROR(GetAce), SETS_LAST_ERROR(InitializeAcl),
       SETS_LAST_ERROR(AddAce), RETURNS_ERROR(SetSecurityInfo),
       SETS_LAST_ERROR(GetKernelObjectSecurity), SETS_LAST_ERROR(GetSecurityDescriptorDacl),
       SETS_LAST_ERROR(GetUserNameW), RETURNS_ERROR(SetEntriesInAclW),
       SETS_LAST_ERROR(MakeAbsoluteSD), SETS_LAST_ERROR(SetSecurityDescriptorDacl),
       SETS_LAST_ERROR(SetKernelObjectSecurity)},
      {{L"FindACEInACL", [&] { return FindACEInACL(list.acl, ace.get()) == 0; }},
       {L"CopyACL", [&] { return CopyACL(TestAcl({}, 40).acl, list.acl); }},
       {L"GetACEInsertionIndex", [&] { return GetACEInsertionIndex(list.acl, audit.get()) == 0; }},
       {L"GetACEInsertionIndex", [&] { return GetACEInsertionIndex(list.acl, ace.get()) == 0; }},
       {L"CalculateACLSize", [&] { return CalculateACLSize(list.acl, sids, 1, nullptr, 0); }},
       {L"AllocateACE", [&] { return AllocateACE(0, 0, 1, &ace.sid); }},
       {L"DeleteDenyACEofObject",
        [&] { return DeleteDenyACEofObject(&ace.sid, scope.desktop, SE_WINDOW_OBJECT); }},
       {L"AllowAccessToWinSta", [&] { return AllowAccessToWinSta(&ace.sid, scope.station); }},
       {L"AllowAccessToDesktop", [&] { return AllowAccessToDesktop(&ace.sid, scope.desktop); }},
       {L"GetFromToken", [&] { return GetFromToken(token.get(), TokenUser); }},
       {L"CreateTokenPriv", [&] { return CreateTokenPriv(&count, names, FALSE); }},
       {L"AllowTokenFullAccessToObject",
        [&] { return allowAll(scope.desktop, SE_WINDOW_OBJECT, L"Desktop"); }},
       {L"AllowTokenFullAccessToObject",
        [&] { return allowAll(scope.station, SE_WINDOW_OBJECT, L"WinStat"); }},
       {L"AllowTokenFullAccessToObject",
        [&] { return allowAll(event.get(), SE_KERNEL_OBJECT, L"Desktop"); }},
       // Last: the object's list grows.
       {L"ModifySecurity", [&] { return ModifySecurity(event.get(), 1); }}},
      [&] {
        // A token's groups are many already.
        ACL* const dacl = operation == L"AllowTokenFullAccessToObject" ? few.acl : many.acl;
        for (const HANDLE object : {HANDLE{scope.station}, HANDLE{scope.desktop}}) {
          SetSecurityInfo(object, SE_WINDOW_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr,
                          dacl, nullptr);
        }
      });
  CheckAgainstFile(Ascii(seen), L"failure_messages.txt");
}
