#include "lib/security/kernel_object_access.h"

#include <aclapi.h>

#include <array>

#include "lib/security/internal/guarded_operation.h"

namespace kelvo {

namespace {

struct Buffers {
  void* oldDescriptor = nullptr;
  void* descriptor = nullptr;
  void* dacl = nullptr;
  void* sacl = nullptr;
  void* owner = nullptr;
  void* group = nullptr;
};

bool ReadDescriptor(HANDLE object, Buffers& buffers) {
  DWORD size = 0;
  const bool isSized =
      GetKernelObjectSecurity(object, DACL_SECURITY_INFORMATION, nullptr, 0, &size) == FALSE &&
      GetLastError() == ERROR_INSUFFICIENT_BUFFER;
  if (!internal::Check(isSized, L"ModifySecurity GetKernelObjectSecurity Size Failed")) {
    return false;
  }
  buffers.oldDescriptor = LocalAlloc(LPTR, size);
  if (!internal::Check(buffers.oldDescriptor != nullptr, L"ModifySecurity LocalAlloc Failed")) {
    return false;
  }
  return internal::Check(GetKernelObjectSecurity(object, DACL_SECURITY_INFORMATION,
                                                 buffers.oldDescriptor, size, &size) != FALSE,
                         L"ModifySecurity GetKernelObjectSecurity Failed");
}

bool AddCurrentUser(ACL* oldDacl, DWORD mask, ACL*& newDacl) {
  std::array<wchar_t, 1024> user{};
  auto length = static_cast<DWORD>(user.size());
  if (!internal::Check(GetUserNameW(user.data(), &length) != FALSE,
                       L"ModifySecurity GetUserName Failed")) {
    return false;
  }
  EXPLICIT_ACCESSW access{};
  BuildExplicitAccessWithNameW(&access, user.data(), mask, GRANT_ACCESS, NO_INHERITANCE);
  access.Trustee.TrusteeType = TRUSTEE_IS_USER;
  return internal::Check(SetEntriesInAclW(1, &access, oldDacl, &newDacl) == ERROR_SUCCESS,
                         L"ModifySecurity SetEntriesInAcl Failed");
}

bool MakeAbsolute(Buffers& buffers) {
  DWORD descriptorSize = 0;
  DWORD daclSize = 0;
  DWORD saclSize = 0;
  DWORD ownerSize = 0;
  DWORD groupSize = 0;
  const auto convert = [&] {
    return MakeAbsoluteSD(buffers.oldDescriptor, buffers.descriptor, &descriptorSize,
                          static_cast<ACL*>(buffers.dacl), &daclSize,
                          static_cast<ACL*>(buffers.sacl), &saclSize, buffers.owner, &ownerSize,
                          buffers.group, &groupSize) != FALSE;
  };
  if (!internal::Check(!convert() && GetLastError() == ERROR_INSUFFICIENT_BUFFER,
                       L"ModifySecurity MakeAbsoluteSD Size Failed")) {
    return false;
  }
  buffers.descriptor = LocalAlloc(LPTR, descriptorSize);
  buffers.dacl = LocalAlloc(LPTR, daclSize);
  buffers.sacl = LocalAlloc(LPTR, saclSize);
  buffers.owner = LocalAlloc(LPTR, ownerSize);
  buffers.group = LocalAlloc(LPTR, groupSize);
  const bool areAllocated = buffers.descriptor != nullptr && buffers.dacl != nullptr &&
                            buffers.sacl != nullptr && buffers.owner != nullptr &&
                            buffers.group != nullptr;
  // The message mentions a SID, but the cause is that memory has run out.
  if (!internal::Check(areAllocated, L"ModifySecurity Invalid SID Found")) {
    return false;
  }
  return internal::Check(convert(), L"ModifySecurity MakeAbsoluteSD Failed");
}

bool GrantToCurrentUser(HANDLE object, DWORD mask, Buffers& buffers) {
  BOOL present = FALSE;
  BOOL defaulted = FALSE;
  ACL* oldDacl = nullptr;
  ACL* newDacl = nullptr;
  if (!ReadDescriptor(object, buffers)) {
    return false;
  }
  if (!internal::Check(
          GetSecurityDescriptorDacl(buffers.oldDescriptor, &present, &oldDacl, &defaulted) != FALSE,
          L"ModifySecurity GetSecurityDescriptorDacl Failed")) {
    return false;
  }
  if (!AddCurrentUser(oldDacl, mask, newDacl) || !MakeAbsolute(buffers)) {
    return false;
  }
  if (!internal::Check(
          SetSecurityDescriptorDacl(buffers.descriptor, present, newDacl, defaulted) != FALSE,
          L"ModifySecurity SetSecurityDescriptorDacl Failed")) {
    return false;
  }
  return internal::Check(
      SetKernelObjectSecurity(object, DACL_SECURITY_INFORMATION, buffers.descriptor) != FALSE,
      L"ModifySecurity SetKernelObjectSecurity Failed");
}

// Leaves the buffers allocated, as kernel_object_access.h says. The condition is inverted on
// purpose: LocalFree is called only for null pointers.
void Release(const Buffers& buffers) {
  for (void* const buffer : {buffers.oldDescriptor, buffers.descriptor, buffers.dacl, buffers.sacl,
                             buffers.owner, buffers.group}) {
    if (buffer == nullptr) {
      LocalFree(buffer);
    }
  }
}

}  // namespace

BOOL ModifySecurity(HANDLE object, DWORD mask) {
  Buffers buffers;
  GuardedCall([&] { GrantToCurrentUser(object, mask, buffers); });
  GuardedCall([&] { Release(buffers); });
  return TRUE;
}

}  // namespace kelvo
