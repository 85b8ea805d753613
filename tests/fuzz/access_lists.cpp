// Tries valid and malformed ACLs. The library must not read or write beyond the memory of an ACL,
// even if the ACL's count of ACEs or the sizes of its ACEs are wrong.

#include <algorithm>

#include "lib/security/access_control_list.h"
#include "lib/security/canonical_order.h"
#include "tests/fuzz/input.h"

namespace kelvo::fuzz {

// Makes an ACE of a random type with a SID of a random length.
static std::string AnyAce(Input& input) {
  const std::size_t authorities = input.Number(3);
  std::string ace(16 + 4 * authorities, '\0');
  std::ranges::generate(ace, [&] { return static_cast<char>(input.Number(2)); });
  ace[0] = static_cast<char>(input.Number(8));
  ace[2] = static_cast<char>(ace.size());
  ace[3] = '\0';
  ace[8] = SID_REVISION;
  ace[9] = static_cast<char>(authorities);
  return ace;
}

static std::string AnyList(Input& input) {
  std::string list("\2\0\0\0\0\0\0\0", sizeof(ACL));
  const std::size_t count = input.Number(4);
  for (std::size_t index = 0; index < count; ++index) {
    list += AnyAce(input);
  }
  list[2] = static_cast<char>(list.size());
  list[4] = static_cast<char>(count);
  return list;
}

// Changes some bytes, and sometimes truncates the list.
static void Corrupt(std::string& list, Input& input) {
  for (std::size_t left = input.Number(6); left > 0; --left) {
    list[input.Number(list.size() - 1)] = static_cast<char>(input.Number(0xFF));
  }
  if (input.Number(7) == 1) {
    list.resize(std::max(input.Number(list.size()), sizeof(ACL)) / 4 * 4);
  }
  // Limits AclSize to the real size, because the library cannot detect a larger AclSize.
  WORD claimed = 0;
  std::memcpy(&claimed, &list[2], sizeof(claimed));
  claimed = std::min(claimed, static_cast<WORD>(list.size()));
  std::memcpy(&list[2], &claimed, sizeof(claimed));
}

static const Target kAccessLists("access lists", [](Input& input) {
  std::string list = AnyList(input);
  const bool isValid = input.Chance();
  if (!isValid) {
    Corrupt(list, input);
  }
  const GuardedMemory memory(list, input.Chance());
  const ACL* const acl = memory.As<ACL>();
  const GuardedMemory aceMemory(AnyAce(input), input.Chance());
  auto* const ace = aceMemory.As<ACCESS_ALLOWED_ACE>();
  const DWORD found = FindACEInACL(acl, ace);
  Expect(found == kNoAceIndex || found < acl->AceCount, "the found index is within the list");
  const DWORD place = GetACEInsertionIndex(acl, ace);
  Expect(place == kNoAceIndex || place <= acl->AceCount, "the insertion index is within the list");
  const DWORD needed = CalculateACLSize(acl, nullptr, 0, &ace, 1);
  const DWORD size = std::clamp<DWORD>(needed, 64, 0xFFFC) / 4 * 4;
  const GuardedMemory copy(size, input.Chance());
  InitializeAcl(copy.As<ACL>(), size, ACL_REVISION);
  const BOOL copied = CopyACL(copy.As<ACL>(), acl);
  if (isValid) {
    Expect(copied != FALSE, "a valid list is copied into an ACL of the calculated size");
    Expect(std::memcmp(copy.As<ACL>() + 1, acl + 1, list.size() - sizeof(ACL)) == 0,
           "the copy has the same entries");
  }
});

}  // namespace kelvo::fuzz
