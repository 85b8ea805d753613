#pragma once

#include "tests/support/testing.h"

#include <aclapi.h>
#include <sddl.h>

#include "tests/support/desktop_scope.h"

namespace kelvo::test {

// An ACE as it is laid out in an ACL. The default SID is S-1-5-19, which is "LS" in SDDL.
struct TestAce {
  ACCESS_ALLOWED_ACE* get() { return reinterpret_cast<ACCESS_ALLOWED_ACE*>(this); }

  BYTE type = 0;
  BYTE flags = 0;
  WORD size = sizeof(TestAce);
  ACCESS_MASK mask = 1;
  SID sid{SID_REVISION, 1, {SECURITY_NT_AUTHORITY}, {19}};
};

// An ACL with `entries` and then `spare` unused bytes. An inaccessible page follows the ACL, so a
// read past the ACL's end causes an access violation. The memory is never freed.
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

// Convert a DACL to SDDL and back. FromSddl(L"none") returns a descriptor without a DACL.
inline std::wstring ToSddl(PSECURITY_DESCRIPTOR descriptor) {
  OwnedLocalMemory<wchar_t> text;
  ConvertSecurityDescriptorToStringSecurityDescriptorW(descriptor, 1, DACL_SECURITY_INFORMATION,
                                                       text.Receive(), nullptr);
  return text.get();
}
inline OwnedLocalMemory<void> FromSddl(const std::wstring& sddl, DWORD* size = nullptr) {
  OwnedLocalMemory<void> descriptor;
  ConvertStringSecurityDescriptorToSecurityDescriptorW(sddl == L"none" ? L"O:BA" : sddl.c_str(), 1,
                                                       descriptor.Receive(), size);
  return descriptor;
}

// The start, in SDDL, of an ACE that grants all rights on a window station or on a desktop.
const std::wstring kAllOfStation = L"(A;;0xf037f;;;";
const std::wstring kAllOfDesktop = L"(A;;CCDCLCSWRPWPDTLOCRSDRCWDWO;;;";

// Returns an object's DACL in SDDL, or "none" when the DACL is missing or null.
inline std::wstring ReadDacl(HANDLE object) {
  std::vector<BYTE> descriptor(0x10000);
  DWORD size = 0x10000;
  GetKernelObjectSecurity(object, DACL_SECURITY_INFORMATION, descriptor.data(), size, &size);
  ACL* dacl = nullptr;
  BOOL flag = FALSE;
  GetSecurityDescriptorDacl(descriptor.data(), &flag, &dacl, &flag);
  return dacl != nullptr ? ToSddl(descriptor.data()) : L"none";
}
inline void WriteDacl(HANDLE object, const std::wstring& sddl) {
  SetKernelObjectSecurity(object, DACL_SECURITY_INFORMATION, FromSddl(sddl).get());
}

inline OwnedKernelObject OwnToken() {
  OwnedKernelObject token;
  OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, token.Receive());
  return token;
}

// A window station and a desktop. Wine 10 finds their DACLs only with SE_KERNEL_OBJECT. Therefore
// replaces SE_WINDOW_OBJECT with SE_KERNEL_OBJECT in calls of GetSecurityInfo and SetSecurityInfo.
struct WindowObjects : DesktopScope {
  WindowObjects() : DesktopScope(L"kelvo security test", L"kelvo desktop") {}

  static constexpr auto kAsKernelObject = [](auto original, HANDLE object, SE_OBJECT_TYPE type,
                                             SECURITY_INFORMATION what, auto... rest) {
    // The code under test must access only the DACL, and must not protect it from inheritance.
    CHECK(what == DACL_SECURITY_INFORMATION);
    return original(object, type == SE_WINDOW_OBJECT ? SE_KERNEL_OBJECT : type, what, rest...);
  };
  using AsKernelObject = decltype(kAsKernelObject);

  ReplacedImport<decltype(::GetSecurityInfo), AsKernelObject> reading{"GetSecurityInfo",
                                                                      kAsKernelObject};
  ReplacedImport<decltype(::SetSecurityInfo), AsKernelObject> writing{"SetSecurityInfo",
                                                                      kAsKernelObject};
};

}  // namespace kelvo::test
