#include "lib/security/access_control_list.h"

#include <algorithm>
#include <random>

#include "lib/platform/owned.h"
#include "lib/security/access_control_entry.h"
#include "lib/security/canonical_order.h"
#include "tests/security/test_acl.h"
#include "tests/support/catch.h"

namespace kelvo {

using test::TestAce;
using test::TestAcl;

constexpr BYTE kTypesByRank[] = {1, 6, 0, 5};

TEST_CASE("an allocated entry equals only its like") {
  TestAce model(0, 2, 0x1234, 18);
  const OwnedLocalMemory<ACCESS_ALLOWED_ACE> ace(AllocateACE(0, 2, 0x1234, &model.sid));
  REQUIRE(ace);
  CHECK(EqualACE(ace.get(), model.get()) == TRUE);
  TestAce tooShort = model;
  tooShort.sid.SubAuthorityCount = 2;
  for (TestAce other : {TestAce(1, 2, 0x1234), TestAce(0, 3, 0x1234), TestAce(0, 2, 0x1235),
                        TestAce(0, 2, 0x1234, 19), tooShort}) {
    CHECK(EqualACE(ace.get(), other.get()) == FALSE);
  }
  CHECK(EqualACE(ace.get(), nullptr) == FALSE);
  CHECK(AllocateACE(0, 0, 1, nullptr) == nullptr);
}

TEST_CASE("the last of equal entries is found, and copies keep all") {
  TestAce wanted(0, 0, 2);
  const TestAcl list({TestAce(1), wanted, TestAce(0), wanted, TestAce(5)});
  CHECK(FindACEInACL(list.get(), wanted.get()) == 3);
  CHECK(FindACEInACL(list.get(), TestAce(0, 0, 3).get()) == kNoAceIndex);

  const TestAcl copy({TestAce(6)}, 5 * sizeof(TestAce));
  REQUIRE(CopyACL(copy.get(), list.get()) == TRUE);
  REQUIRE(copy.get()->AceCount == 6);
  CHECK(copy.Ace(0)->header.AceType == 6);
  CHECK(std::memcmp(copy.Ace(1), list.Ace(0), 5 * sizeof(TestAce)) == 0);
}

TEST_CASE("a list's size counts a header, its entries and the new ones") {
  const TestAcl list({TestAce(0), TestAce(1)}, 100);
  TestAce ace(0);
  const ACCESS_ALLOWED_ACE* const aces[] = {ace.get(), ace.get()};
  const PSID sids[] = {&ace.sid, &ace.sid, &ace.sid};
  CHECK(CalculateACLSize(nullptr, nullptr, 0, nullptr, 0) == 8);
  CHECK(CalculateACLSize(list.get(), nullptr, 0, nullptr, 0) == 48 + 8);
  CHECK(CalculateACLSize(list.get(), sids, 3, aces, 2) == 48 + 3 * 20 + 2 * 20 + 8);
}

TEST_CASE("a new entry goes in front of the first of its own rank") {
  const TestAcl list({TestAce(1), TestAce(0), TestAce(0), TestAce(5), TestAce(0, INHERITED_ACE)});
  const struct {
    BYTE type;
    BYTE flags;
    DWORD index;
  } cases[] = {{1, 0, 0},
               {6, 0, 1},
               {0, 0, 1},
               {5, 0, 3},
               {1, 0x10, 4},
               {6, 0x10, 4},
               {0, 0x13, 4},
               {5, 0x10, 5},
               {5, 0x0F, 3},
               {2, 0, kNoAceIndex},
               {17, 0x10, kNoAceIndex}};
  for (const auto& [type, flags, index] : cases) {
    CAPTURE(int{type}, int{flags});
    CHECK(GetACEInsertionIndex(list.get(), TestAce(type, flags).get()) == index);
  }
  CHECK(GetACEInsertionIndex(TestAcl({}).get(), TestAce(0).get()) == 0);
}

TEST_CASE("a list in canonical order stays so with each new entry, and keeps all others") {
  constexpr unsigned kSeed = 20;
  const auto inserting = KELVO_REPLACE_IMPORT(AddAce, test::AddAceAtIndex{});
  std::mt19937 random(kSeed);
  const auto rankOf = [](const TestAce& ace) { return CanonicalRank(ace.header).value(); };
  const auto inOrder = [&](const TestAce& a, const TestAce& b) { return rankOf(a) < rankOf(b); };
  const auto randomAce = [&] {
    return TestAce(kTypesByRank[random() % 4], static_cast<BYTE>(random() % 32), random());
  };
  for (int round = 0; round < 100; ++round) {
    CAPTURE(kSeed, round);
    std::vector<TestAce> aces;
    std::generate_n(std::back_inserter(aces), random() % 30, randomAce);
    std::stable_sort(aces.begin(), aces.end(), inOrder);
    TestAce added = randomAce();
    const TestAcl list(aces);
    const TestAcl grown({}, (aces.size() + 1) * sizeof(TestAce));
    REQUIRE(CopyACL(grown.get(), list.get()) == TRUE);
    const DWORD index = GetACEInsertionIndex(grown.get(), added.get());
    REQUIRE(AddAce(grown.get(), ACL_REVISION, index, added.get(), sizeof(added)) == TRUE);

    std::vector<TestAce> result(grown.Ace(0), grown.Ace(grown.get()->AceCount));
    CHECK(std::is_sorted(result.begin(), result.end(), inOrder));
    REQUIRE(result.size() == aces.size() + 1);
    CHECK(EqualACE(result.at(index).get(), added.get()) == TRUE);
    result.erase(result.begin() + static_cast<std::ptrdiff_t>(index));
    CHECK(std::memcmp(result.data(), aces.data(), aces.size() * sizeof(TestAce)) == 0);
  }
}

}  // namespace kelvo
