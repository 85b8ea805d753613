#include "lib/security/access_control_list.h"

#include <aclapi.h>

#include <cstring>
#include <functional>

#include "lib/security/canonical_order.h"
#include "lib/security/deny_ace_removal.h"
#include "lib/trace/trace_sink.h"
#include "tests/security/test_acl.h"
#include "tests/support/testing.h"

static void DeleteDenyAces(const TestAcl& list, PSID sid) {
  REPLACE(GetSecurityInfo, [&](auto, auto, auto, auto, auto, auto, ACL** dacl, auto...) {
    *dacl = list.acl;  // so DeleteDenyACEofObject changes `list` itself
    return DWORD{ERROR_SUCCESS};
  });
  DeleteDenyACEofObject(sid, nullptr, SE_WINDOW_OBJECT);
}

TEST_CASE(
    "FindACEInACL, CopyACL, CalculateACLSize: find the last equal ACE, copy all ACEs, sum sizes") {
  TestAce wanted{.flags = 2, .mask = 7};
  TestAce other{.flags = 2, .mask = 7, .sid = {SID_REVISION, 1, {SECURITY_NT_AUTHORITY}, {18}}};
  const TestAcl list({wanted, wanted, {.type = 1, .flags = 2, .mask = 7}, {.mask = 7}, other});
  CHECK(FindACEInACL(list.acl, wanted.get()) == 1);
  const TestAcl copy({TestAce{}}, 100);
  REQUIRE((CopyACL(copy.acl, list.acl) == TRUE && copy.acl->AceCount == 6));
  CHECK(std::memcmp(copy.aces + 1, list.aces, 100) == 0);
  const ACCESS_ALLOWED_ACE* const ace = wanted.get();
  const PSID sids[] = {&wanted.sid, &wanted.sid, &wanted.sid};
  CHECK(CalculateACLSize(list.acl, sids, 3, &ace, 1) == 8 + 5 * 20 + 3 * 20 + 20 + 8);
  CHECK(CalculateACLSize(nullptr, sids, 1, nullptr, 0) == 20 + 8);
  const TestAcl denying({{.type = 6}, {.type = 6}, {.type = 1}, {.type = 5}, other});
  DeleteDenyAces(denying, &wanted.sid);
  CHECK(denying.acl->AceCount == 3);
}

TEST_CASE("GetACEInsertionIndex: finds the first ACE with an equal or greater rank") {
  const TestAcl list({{.type = 1}, {}, {}, {.type = 5}, {.flags = INHERITED_ACE}});
  const std::tuple<BYTE, BYTE, DWORD> cases[] = {{1, 0, 0},    {6, 0, 1},    {0, 0, 1},
                                                 {5, 0x0F, 3}, {1, 0x10, 4}, {6, 0x10, 4},
                                                 {0, 0x13, 4}, {5, 0x10, 5}, {2, 0, kNoAceIndex}};
  for (const auto& [type, flags, index] : cases) {
    TestAce added{.type = type, .flags = flags};
    CHECK(GetACEInsertionIndex(list.acl, added.get()) == index);
  }
}

TEST_CASE(
    "FindACEInACL, DeleteDenyACEofObject, CopyACL: never read past the end of a malformed ACL") {
  // A function that read past the end would swallow the access violation, not trace "... Failed".
  static std::wstring traced;
  SetTraceSink([](auto, const wchar_t* message) { traced += message + std::wstring(L";"); });
  TestAce ace{.type = 1};
  const std::function<void(const TestAcl&)> corruptions[] = {
      [](auto& list) { list.aces[1].size += 4; },
      [](auto& list) { list.aces[0].size = 0; },
      [](auto& list) { list.acl->AceCount = 3; },
      [](auto& list) { *list.acl = {ACL_REVISION, 0, 7, 0, 0}; },
      [](auto& list) { list.aces[1].sid.SubAuthorityCount = 2; },
      [](auto& list) { list.aces[1].size = 15; }};
  for (const auto& corrupt : corruptions) {
    const TestAcl list({{.type = 1, .mask = 2}, {.type = 1}});
    corrupt(list);
    traced.clear();
    CHECK(FindACEInACL(list.acl, ace.get()) == kNoAceIndex);
    DeleteDenyAces(list, &ace.sid);
    CHECK(CopyACL(list.acl, TestAcl({{}}).acl) == FALSE);
    CHECK(traced == (&corrupt - corruptions < 4 ? L"FindACEInACL GetAclInformation Failed;"
                                                  L"DeleteDenyACEofObject GetAclInformation Failed;"
                                                : L"DeleteDenyACEofObject GetAce Failed;") +
                        std::wstring(L"DeleteDenyACEofObject exception caught in __finally;"
                                     L"CopyACL AddAce Failed;"));
  }
  SetTraceSink(nullptr);
  const TestAcl full(std::vector<TestAce>(3276, TestAce{.type = 1}), 4);
  full.aces[3275].size += 4;
  CHECK(FindACEInACL(full.acl, ace.get()) == 3274);
  CHECK(CopyACL(full.acl, TestAcl({{}}).acl) == FALSE);
}
