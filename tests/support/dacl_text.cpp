#include "tests/support/dacl_text.h"

#include <aclapi.h>
#include <sddl.h>

#include "lib/platform/owned.h"
#include "lib/security/token_information.h"

namespace kelvo::test {

namespace {

std::wstring ToSddl(PSECURITY_DESCRIPTOR descriptor) {
  OwnedLocalMemory<wchar_t> text;
  ConvertSecurityDescriptorToStringSecurityDescriptorW(
      descriptor, SDDL_REVISION_1, DACL_SECURITY_INFORMATION, text.Receive(), nullptr);
  return text ? text.get() : L"unreadable";
}

OwnedLocalMemory<void> FromSddl(const std::wstring& sddl) {
  OwnedLocalMemory<void> descriptor;
  ConvertStringSecurityDescriptorToSecurityDescriptorW(sddl.c_str(), SDDL_REVISION_1,
                                                       descriptor.Receive(), nullptr);
  return descriptor;
}

}  // namespace

std::wstring ReadDacl(HANDLE object, SE_OBJECT_TYPE type) {
  ACL* dacl = nullptr;
  OwnedLocalMemory<void> descriptor;
  GetSecurityInfo(object, type, DACL_SECURITY_INFORMATION, nullptr, nullptr, &dacl, nullptr,
                  descriptor.Receive());
  return dacl != nullptr ? ToSddl(descriptor.get()) : L"none";
}

void WriteDacl(HANDLE object, const std::wstring& sddl, SE_OBJECT_TYPE type) {
  const OwnedLocalMemory<void> descriptor = FromSddl(sddl);
  ACL* dacl = nullptr;
  BOOL present = FALSE;
  BOOL defaulted = FALSE;
  if (descriptor) {
    GetSecurityDescriptorDacl(descriptor.get(), &present, &dacl, &defaulted);
  }
  SetSecurityInfo(object, type, DACL_SECURITY_INFORMATION, nullptr, nullptr, dacl, nullptr);
}

std::wstring CurrentUserSid() {
  OwnedKernelObject token;
  OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, token.Receive());
  const OwnedLocalMemory<void> user(GetFromToken(token.get(), TokenUser));
  OwnedLocalMemory<wchar_t> text;
  ConvertSidToStringSidW(static_cast<TOKEN_USER*>(user.get())->User.Sid, text.Receive());
  return text.get();
}

}  // namespace kelvo::test
