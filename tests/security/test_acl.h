#pragma once

#include <windows.h>

#include <algorithm>
#include <cstring>
#include <vector>

#include "tests/support/replaced_import.h"

namespace kelvo::test {

// An entry as it lies in a list, with the SID S-1-5-`account`.
struct TestAce {
  explicit TestAce(BYTE type, BYTE flags = 0, ACCESS_MASK accessMask = 1, DWORD account = 18)
      : header{type, flags, sizeof(TestAce)},
        mask(accessMask),
        sid{SID_REVISION, 1, {SECURITY_NT_AUTHORITY}, {account}} {}

  [[nodiscard]] ACCESS_ALLOWED_ACE* get() { return reinterpret_cast<ACCESS_ALLOWED_ACE*>(this); }

  ACE_HEADER header;
  ACCESS_MASK mask;
  SID sid;
};
static_assert(sizeof(TestAce) == 20);

// A list of these entries and `spare` bytes that ends where memory ends: a read past it is a fault.
class TestAcl {
 public:
  explicit TestAcl(const std::vector<TestAce>& aces, std::size_t spare = 0) {
    const std::size_t size = sizeof(ACL) + aces.size() * sizeof(TestAce) + spare;
    constexpr std::size_t kRoom = 0x10000;
    auto* const memory = static_cast<BYTE*>(
        VirtualAlloc(nullptr, kRoom + 1, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE));
    DWORD previous = 0;
    VirtualProtect(memory + kRoom, 1, PAGE_NOACCESS, &previous);
    memory_ = memory;
    acl_ = reinterpret_cast<ACL*>(memory + kRoom - size);
    *acl_ = {ACL_REVISION, 0, static_cast<WORD>(size), static_cast<WORD>(aces.size()), 0};
    std::memcpy(static_cast<void*>(Ace(0)), aces.data(), aces.size() * sizeof(TestAce));
  }
  TestAcl(const TestAcl&) = delete;
  TestAcl& operator=(const TestAcl&) = delete;
  ~TestAcl() { VirtualFree(memory_, 0, MEM_RELEASE); }

  [[nodiscard]] ACL* get() const { return acl_; }
  [[nodiscard]] TestAce* Ace(std::size_t index) const {
    return reinterpret_cast<TestAce*>(acl_ + 1) + index;
  }

 private:
  void* memory_ = nullptr;
  ACL* acl_ = nullptr;
};

// Wine's AddAce appends wherever the entry is to go; with this in its place it inserts, as on
// Windows.
struct AddAceAtIndex {
  BOOL operator()(decltype(&::AddAce) original, ACL* acl, DWORD revision, DWORD index, void* ace,
                  DWORD length) const {
    if (original(acl, revision, MAXDWORD, ace, length) == FALSE) {
      return FALSE;
    }
    void* at = nullptr;
    void* appended = nullptr;
    if (GetAce(acl, index, &at) != FALSE && GetAce(acl, acl->AceCount - 1U, &appended) != FALSE) {
      auto* const begin = static_cast<BYTE*>(appended);
      std::rotate(static_cast<BYTE*>(at), begin, begin + length);
    }
    return TRUE;
  }
};

}  // namespace kelvo::test
