// Access lists of every broken shape: whatever sizes they claim, nothing beyond their memory is
// read or written.

#include <algorithm>

#include "lib/security/access_control_entry.h"
#include "lib/security/access_control_list.h"
#include "lib/security/canonical_order.h"
#include "torture/input.h"

namespace kelvo::torture {

namespace {

// An entry of some type with a SID of some length, mostly sound.
std::string AnyAce(Input& input) {
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

struct List {
  explicit List(Input& input) : bytes("\2\0\0\0\0\0\0\0", 8) {
    const std::size_t count = input.Number(4);
    for (std::size_t index = 0; index < count; ++index) {
      bytes += AnyAce(input);
    }
    bytes[2] = static_cast<char>(bytes.size());
    bytes[4] = static_cast<char>(count);
    isSound = input.Chance();
    if (!isSound) {
      input.Mutate(bytes);
      bytes.resize(std::max<std::size_t>(bytes.size(), sizeof(ACL)));
      // A list that claimed more bytes than it has could not be told from one that has them.
      WORD claimed = 0;
      std::memcpy(&claimed, bytes.data() + 2, 2);
      claimed = std::min(claimed, static_cast<WORD>(bytes.size()));
      std::memcpy(bytes.data() + 2, &claimed, 2);
    }
    // At an address that a list may have.
    bytes.resize((bytes.size() + 3) / 4 * 4);
  }

  std::string bytes;
  bool isSound;
};

void UseList(Input& input) {
  const List list(input);
  const GuardedMemory memory(list.bytes, input.Chance());
  const ACL* const acl = memory.As<ACL>();
  const GuardedMemory aceMemory(AnyAce(input), input.Chance());
  auto* const ace = aceMemory.As<ACCESS_ALLOWED_ACE>();
  const DWORD found = FindACEInACL(acl, ace);
  Expect(found == kNoAceIndex || found < acl->AceCount, "an entry is found within the list");
  const DWORD place = GetACEInsertionIndex(acl, ace);
  Expect(place == kNoAceIndex || place <= acl->AceCount, "an entry goes within the list");
  CanonicalRank(ace->Header);
  EqualACE(ace, ace);
  PSID const sid = &ace->SidStart;
  const DWORD size = CalculateACLSize(acl, &sid, 1, &ace, 1);
  const std::size_t room = size != 0 ? std::min<std::size_t>(size, 0xFFFC) / 4 * 4 : 64;
  const GuardedMemory copy(room, input.Chance());
  InitializeAcl(copy.As<ACL>(), static_cast<DWORD>(room), ACL_REVISION);
  const BOOL copied = CopyACL(copy.As<ACL>(), acl);
  if (list.isSound) {
    Expect(size != 0 && copied != FALSE, "a sound list is copied into the size it needs");
    const std::size_t used = list.bytes.size() - sizeof(ACL);
    Expect(std::memcmp(copy.As<BYTE>() + 8, list.bytes.data() + 8, used) == 0,
           "the entries are the same");
  }
}

}  // namespace

std::vector<Target> AccessListTargets() { return {{"access lists", UseList}}; }

}  // namespace kelvo::torture
