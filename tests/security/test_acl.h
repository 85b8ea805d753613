#pragma once

#include <windows.h>

#include <algorithm>
#include <vector>

namespace kelvo::test {

// An entry as it lies in a list, with the SID S-1-5-19, which is "LS" in SDDL.
struct TestAce {
  ACCESS_ALLOWED_ACE* get() { return reinterpret_cast<ACCESS_ALLOWED_ACE*>(this); }

  BYTE type = 0;
  BYTE flags = 0;
  WORD size = sizeof(TestAce);
  ACCESS_MASK mask = 1;
  SID sid{SID_REVISION, 1, {SECURITY_NT_AUTHORITY}, {19}};
};

// A list of these entries and `spare` bytes that ends where memory ends: a read past it is a fault.
// It is never freed.
struct TestAcl {
  explicit TestAcl(const std::vector<TestAce>& entries, std::size_t spare = 0) {
    constexpr std::size_t kRoom = 0x10000;
    auto* const memory = VirtualAlloc(nullptr, kRoom + 1, MEM_RESERVE, PAGE_NOACCESS);
    VirtualAlloc(memory, kRoom, MEM_COMMIT, PAGE_READWRITE);
    const std::size_t size = sizeof(ACL) + entries.size() * sizeof(TestAce) + spare;
    acl = reinterpret_cast<ACL*>(static_cast<BYTE*>(memory) + kRoom - size);
    *acl = {ACL_REVISION, 0, static_cast<WORD>(size), static_cast<WORD>(entries.size()), 0};
    aces = reinterpret_cast<TestAce*>(acl + 1);
    std::copy(entries.begin(), entries.end(), aces);
  }

  ACL* acl = nullptr;
  TestAce* aces = nullptr;
};

}  // namespace kelvo::test
