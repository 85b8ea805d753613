#include <aclapi.h>

#include <functional>
#include <string>

#include "lib/security/access_control_list.h"
#include "lib/security/canonical_order.h"
#include "lib/security/deny_ace_removal.h"
#include "lib/security/window_object_access.h"
#include "tests/security/test_acl.h"
#include "tests/support/catch.h"
#include "tests/support/trace_recorder.h"

namespace kelvo {

using test::TestAce;
using test::TestAcl;

namespace {

// What all operations on a list trace about this one.
std::vector<std::wstring> MessagesAbout(ACL* acl) {
  test::TraceRecorder recorder;
  const auto read = KELVO_REPLACE_IMPORT(
      GetSecurityInfo, [=](auto, HANDLE, auto, auto, auto, auto, ACL** dacl, auto, auto) -> DWORD {
        *dacl = acl;
        return ERROR_SUCCESS;
      });
  const auto write =
      KELVO_REPLACE_IMPORT(SetSecurityInfo, [](auto...) -> DWORD { return ERROR_SUCCESS; });
  TestAce ace(0, INHERITED_ACE, 7);
  const TestAcl copy({}, 200);
  FindACEInACL(acl, ace.get());
  CopyACL(copy.get(), acl);
  GetACEInsertionIndex(acl, ace.get());
  CalculateACLSize(acl, nullptr, 0, nullptr, 0);
  DeleteDenyACEofObject(&ace.sid, nullptr, SE_WINDOW_OBJECT);
  AllowAccessToDesktop(&ace.sid, nullptr);
  return recorder.Take();
}

}  // namespace

TEST_CASE("lists with sizes that lie are refused before anything past them is read") {
  const std::function<void(const TestAcl&)> lies[] = {
      [](const TestAcl& list) { list.Ace(1)->header.AceSize += 4; },
      [](const TestAcl& list) { list.Ace(0)->header.AceSize = 0xFFFF; },
      [](const TestAcl& list) { list.Ace(0)->header.AceSize = 0; },
      [](const TestAcl& list) { list.get()->AceCount = 3; },
      [](const TestAcl& list) { list.get()->AceCount = 0xFFFF; },
      [](const TestAcl& list) { *list.get() = {ACL_REVISION, 0, 7, 0, 0}; },
  };
  for (const auto& lie : lies) {
    CAPTURE(&lie - lies);
    const TestAcl list({TestAce(1), TestAce(1)});
    lie(list);
    CHECK(MessagesAbout(list.get()) ==
          std::vector<std::wstring>{
              L"FindACEInACL GetAclInformation Failed", L"CopyACL GetAclInformation Failed",
              L"GetACEInsertionIndex GetAclInformation Failed",
              L"CalculateACLSize GetAclInformation Failed",
              L"DeleteDenyACEofObject GetAclInformation Failed",
              L"DeleteDenyACEofObject exception caught in __finally",
              L"FindACEInACL GetAclInformation Failed",
              L"CalculateACLSize GetAclInformation Failed", L"AllowAccessToDesktop Init ACL Failed",
              L"AllowAccessToDesktop exception caught in __finally"});
    test::TraceRecorder recorder;
    CHECK(CopyACL(list.get(), TestAcl({TestAce(0)}).get()) == FALSE);
    CHECK(recorder.Take() == std::vector<std::wstring>{L"CopyACL AddAce Failed"});
  }
}

TEST_CASE("entries that cannot be read or ranked fail only what has to read or rank them") {
  const TestAcl list({TestAce(0), TestAce(1)});
  SECTION("a SID longer than its entry") {
    list.Ace(1)->sid.SubAuthorityCount = 15;
    CHECK(MessagesAbout(list.get()) ==
          std::vector<std::wstring>{L"DeleteDenyACEofObject GetAce Failed",
                                    L"DeleteDenyACEofObject exception caught in __finally"});
  }
  SECTION("an entry that ends before its SID does") {
    list.Ace(1)->header.AceSize = 15;
    CHECK(MessagesAbout(list.get()) ==
          std::vector<std::wstring>{L"DeleteDenyACEofObject GetAce Failed",
                                    L"DeleteDenyACEofObject exception caught in __finally"});
  }
  SECTION("a type without a rank") {
    list.Ace(1)->header.AceType = SYSTEM_AUDIT_ACE_TYPE;
    CHECK(MessagesAbout(list.get()) ==
          std::vector<std::wstring>{L"GetACEInsertionIndex Bad Src Ace Type"});
  }
}

TEST_CASE("a list of the largest size is read, and takes no further entry") {
  const TestAcl list(std::vector<TestAce>(3276, TestAce(1, 0, 1, 19)), 7);
  list.Ace(3275)->header.AceSize += 7;
  REQUIRE(list.get()->AclSize == 0xFFFF);
  CHECK(FindACEInACL(list.get(), TestAce(1, 0, 1, 19).get()) == 3274);
  CHECK(MessagesAbout(list.get()) ==
        std::vector<std::wstring>{L"CopyACL AddAce Failed", L"AllowAccessToDesktop Init ACL Failed",
                                  L"AllowAccessToDesktop exception caught in __finally"});
}

}  // namespace kelvo
