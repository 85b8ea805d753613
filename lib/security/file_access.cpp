#include "lib/security/file_access.h"

#include <sddl.h>

#include <cwchar>
#include <vector>

#include "lib/platform/module.h"
#include "lib/platform/owned.h"
#include "lib/security/internal/ace_replacement.h"
#include "lib/security/internal/ace_view.h"

namespace kelvo {

namespace {

bool Succeeded(BOOL answer, const wchar_t* messageFormat) {
  if (answer == FALSE) {
    std::wprintf(messageFormat, static_cast<int>(GetLastError()));
  }
  return answer != FALSE;
}

template <typename Content>
bool Allocate(DWORD size, OwnedProcessHeapMemory<Content>& memory) {
  memory.reset(static_cast<Content*>(HeapAlloc(GetProcessHeap(), HEAP_ZERO_MEMORY, size)));
  return Succeeded(memory ? TRUE : FALSE, L"HeapAlloc() failed. Error %d\n");
}

bool ReadDescriptor(const wchar_t* path, OwnedProcessHeapMemory<void>& descriptor) {
  DWORD size = 0;
  if (GetFileSecurityW(path, DACL_SECURITY_INFORMATION, nullptr, 0, &size) != FALSE) {
    return false;  // a file without anything to read is refused without a word
  }
  return Succeeded(GetLastError() == ERROR_INSUFFICIENT_BUFFER ? TRUE : FALSE,
                   L"GetFileSecurity() failed. Error %d\n") &&
         Allocate(size, descriptor) &&
         Succeeded(GetFileSecurityW(path, DACL_SECURITY_INFORMATION, descriptor.get(), size, &size),
                   L"GetFileSecurity() failed. Error %d\n");
}

// The DACL of a descriptor, null when it has none, and its size.
bool FindDacl(PSECURITY_DESCRIPTOR descriptor, ACL*& dacl, ACL_SIZE_INFORMATION& size) {
  BOOL isPresent = FALSE;
  BOOL isDefaulted = FALSE;
  if (!Succeeded(GetSecurityDescriptorDacl(descriptor, &isPresent, &dacl, &isDefaulted),
                 L"GetSecurityDescriptorDacl() failed. Error %d\n")) {
    return false;
  }
  if (isPresent == FALSE) {
    dacl = nullptr;
  }
  size = {.AceCount = 0, .AclBytesInUse = sizeof(ACL), .AclBytesFree = 0};
  return dacl == nullptr || Succeeded(internal::QueryAclSize(dacl, size) ? TRUE : FALSE,
                                      L"GetAclInformation() failed. Error %d\n");
}

bool ReadAces(ACL* dacl, DWORD count, PSID account, std::vector<ACCESS_ALLOWED_ACE*>& aces,
              std::vector<internal::AceFacts>& facts) {
  for (DWORD index = 0; index < count; ++index) {
    ACCESS_ALLOWED_ACE* const ace = internal::AceAt(dacl, index);
    if (!Succeeded(ace != nullptr ? TRUE : FALSE, L"GetAce() failed. Error %d\n")) {
      return false;
    }
    const PSID owner = internal::SidOfAce(ace);
    aces.push_back(ace);
    facts.push_back({.isInherited = (ace->Header.AceFlags & INHERITED_ACE) != 0,
                     .isOfAccount = owner != nullptr && EqualSid(owner, account) != FALSE});
  }
  return true;
}

// Fills an initialized list with the entries of an old one, which may be null, and the new entry.
bool FillDacl(ACL* oldDacl, DWORD count, PSID account, DWORD accessMask, ACL* newDacl) {
  std::vector<ACCESS_ALLOWED_ACE*> aces;
  std::vector<internal::AceFacts> facts;
  if (!ReadAces(oldDacl, count, account, aces, facts)) {
    return false;
  }
  for (const DWORD index : internal::ReplaceAcesOfAccount(facts)) {
    const bool added =
        index == internal::kAddedAce
            ? Succeeded(AddAccessAllowedAce(newDacl, ACL_REVISION, accessMask, account),
                        L"AddAccessAllowedAce() failed. Error %d\n")
            : Succeeded(
                  AddAce(newDacl, ACL_REVISION, MAXDWORD, aces[index], aces[index]->Header.AceSize),
                  L"AddAce() failed. Error %d\n");
    if (!added) {
      return false;
    }
  }
  return true;
}

bool BuildDacl(PSECURITY_DESCRIPTOR oldDescriptor, PSID account, DWORD accessMask,
               OwnedProcessHeapMemory<ACL>& newDacl) {
  ACL* oldDacl = nullptr;
  ACL_SIZE_INFORMATION oldSize{};
  if (!FindDacl(oldDescriptor, oldDacl, oldSize)) {
    return false;
  }
  // An ACCESS_ALLOWED_ACE already counts the first four bytes of its SID.
  const DWORD newSize = oldSize.AclBytesInUse + sizeof(ACCESS_ALLOWED_ACE) + GetLengthSid(account) -
                        sizeof(ACCESS_ALLOWED_ACE::SidStart);
  return Allocate(newSize, newDacl) &&
         Succeeded(InitializeAcl(newDacl.get(), newSize, ACL_REVISION),
                   L"InitializeAcl() failed. Error %d\n") &&
         FillDacl(oldDacl, oldSize.AceCount, account, accessMask, newDacl.get());
}

SECURITY_DESCRIPTOR_CONTROL InheritanceControl(SECURITY_DESCRIPTOR_CONTROL old) {
  if ((old & SE_DACL_AUTO_INHERITED) != 0) {
    return SE_DACL_AUTO_INHERIT_REQ | SE_DACL_AUTO_INHERITED;
  }
  return old & SE_DACL_PROTECTED;
}

bool CarryInheritanceOver(PSECURITY_DESCRIPTOR from, PSECURITY_DESCRIPTOR to) {
  auto* const setControl =
      KELVO_FIND_FUNCTION(GetModuleHandleW(L"advapi32.dll"), SetSecurityDescriptorControl);
  if (setControl == nullptr) {
    return true;  // Windows NT 4.0, which has no such flags
  }
  SECURITY_DESCRIPTOR_CONTROL old = 0;
  DWORD revision = 0;
  if (!Succeeded(GetSecurityDescriptorControl(from, &old, &revision),
                 L"GetSecurityDescriptorControl() failed.Error %d\n")) {
    return false;
  }
  const SECURITY_DESCRIPTOR_CONTROL bits = InheritanceControl(old);
  return bits == 0 ||
         Succeeded(setControl(to, bits, bits), L"SetSecurityDescriptorControl() failed.Error %d\n");
}

}  // namespace

BOOL AddFileAccessRights(const wchar_t* path, const wchar_t* sid, DWORD accessMask) {
  OwnedLocalMemory<void> account;
  if (ConvertStringSidToSidW(sid, account.Receive()) == FALSE) {
    return FALSE;
  }
  OwnedProcessHeapMemory<void> oldDescriptor;
  OwnedProcessHeapMemory<ACL> newDacl;
  SECURITY_DESCRIPTOR newDescriptor{};
  const bool isWritten =
      ReadDescriptor(path, oldDescriptor) &&
      Succeeded(InitializeSecurityDescriptor(&newDescriptor, SECURITY_DESCRIPTOR_REVISION),
                L"InitializeSecurityDescriptor() failed.Error %d\n") &&
      BuildDacl(oldDescriptor.get(), account.get(), accessMask, newDacl) &&
      Succeeded(SetSecurityDescriptorDacl(&newDescriptor, TRUE, newDacl.get(), FALSE),
                L"SetSecurityDescriptorDacl() failed. Error %d\n") &&
      CarryInheritanceOver(oldDescriptor.get(), &newDescriptor) &&
      Succeeded(SetFileSecurityW(path, DACL_SECURITY_INFORMATION, &newDescriptor),
                L"SetFileSecurity() failed. Error %d\n");
  return isWritten ? TRUE : FALSE;
}

}  // namespace kelvo
