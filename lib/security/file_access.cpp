#include "lib/security/file_access.h"

#include <sddl.h>

#include <cstddef>
#include <cwchar>

#include "lib/platform/module.h"
#include "lib/platform/owned.h"
#include "lib/security/internal/ace_view.h"

namespace kelvo {

namespace {

// When `succeeded` is false, prints the last error with `messageFormat`. Returns `succeeded`.
bool Check(bool succeeded, const wchar_t* messageFormat) {
  if (!succeeded) {
    std::wprintf(messageFormat, static_cast<int>(GetLastError()));
  }
  return succeeded;
}

template <typename Content>
bool Allocate(DWORD size, OwnedProcessHeapMemory<Content>& memory) {
  memory.reset(static_cast<Content*>(HeapAlloc(GetProcessHeap(), HEAP_ZERO_MEMORY, size)));
  return Check(static_cast<bool>(memory), L"HeapAlloc() failed. Error %d\n");
}

// A file's security descriptor: `size` bytes at `memory`. It contains only the DACL, because
// nothing else is requested from Windows.
struct Descriptor {
  OwnedProcessHeapMemory<void> memory;
  DWORD size = 0;
};

bool ReadDescriptor(const wchar_t* path, Descriptor& read) {
  DWORD size = 0;
  if (GetFileSecurityW(path, DACL_SECURITY_INFORMATION, nullptr, 0, &size) != FALSE) {
    // The call succeeded without a buffer: the file has no descriptor. There is no error to print.
    return false;
  }
  read.size = size;
  return Check(GetLastError() == ERROR_INSUFFICIENT_BUFFER,
               L"GetFileSecurity() failed. Error %d\n") &&
         Allocate(size, read.memory) &&
         Check(GetFileSecurityW(path, DACL_SECURITY_INFORMATION, read.memory.get(), size, &size) !=
                   FALSE,
               L"GetFileSecurity() failed. Error %d\n");
}

// Checks that the DACL is inside the descriptor, that every ACE is inside the DACL, and that
// neither the DACL nor an ACE is smaller than its header. If a check fails, sets the last error to
// ERROR_INVALID_ACL and returns false. Otherwise, calls GetAclInformation and returns whether that
// call succeeds.
bool QueryDaclSize(const Descriptor& descriptor, const ACL* dacl, ACL_SIZE_INFORMATION& size) {
  const auto offset = static_cast<std::size_t>(reinterpret_cast<const BYTE*>(dacl) -
                                               static_cast<const BYTE*>(descriptor.memory.get()));
  if (offset > descriptor.size || descriptor.size - offset < sizeof(ACL) ||
      descriptor.size - offset < dacl->AclSize) {
    SetLastError(ERROR_INVALID_ACL);
    return false;
  }
  return internal::QueryAclSize(dacl, size);
}

// Stores the descriptor's DACL in `dacl`, and the DACL's size information in `size`. If the DACL is
// absent or null, stores null and the size information of an ACL without ACEs.
bool FindDacl(const Descriptor& descriptor, ACL*& dacl, ACL_SIZE_INFORMATION& size) {
  BOOL isPresent = FALSE;
  BOOL isDefaulted = FALSE;
  if (!Check(GetSecurityDescriptorDacl(descriptor.memory.get(), &isPresent, &dacl, &isDefaulted) !=
                 FALSE,
             L"GetSecurityDescriptorDacl() failed. Error %d\n")) {
    return false;
  }
  if (isPresent == FALSE) {
    dacl = nullptr;
  }
  size = {.AceCount = 0, .AclBytesInUse = sizeof(ACL), .AclBytesFree = 0};
  return dacl == nullptr ||
         Check(QueryDaclSize(descriptor, dacl, size), L"GetAclInformation() failed. Error %d\n");
}

bool ReadAce(const ACL* dacl, DWORD index, void*& ace) {
  ace = internal::AceAt(dacl, index);
  return Check(ace != nullptr, L"GetAce() failed. Error %d\n");
}

bool AppendAce(ACL* dacl, void* ace) {
  return Check(
      AddAce(dacl, ACL_REVISION, MAXDWORD, ace, internal::HeaderOfAce(ace).AceSize) != FALSE,
      L"AddAce() failed. Error %d\n");
}

bool IsOfAccount(const void* ace, PSID account) {
  const PSID sid = internal::SidOfAce(ace);
  return sid != nullptr && EqualSid(sid, account) != FALSE;
}

// Adds the following ACEs to `newDacl`, which must be empty. `count` is the number of ACEs in
// `oldDacl`, which may be null when `count` is 0.
//   1. The ACEs of `oldDacl` before its first inherited ACE, except those of `account`. Object ACEs
//      of `account` are kept.
//   2. The new ACE.
//   3. The first inherited ACE of `oldDacl` and all ACEs after it, including those of `account`.
bool FillDacl(const ACL* oldDacl, DWORD count, PSID account, DWORD accessMask, ACL* newDacl) {
  void* ace = nullptr;
  DWORD index = 0;
  for (; index < count; ++index) {
    if (!ReadAce(oldDacl, index, ace)) {
      return false;
    }
    if ((internal::HeaderOfAce(ace).AceFlags & INHERITED_ACE) != 0) {
      break;
    }
    if (!IsOfAccount(ace, account) && !AppendAce(newDacl, ace)) {
      return false;
    }
  }
  if (!Check(AddAccessAllowedAce(newDacl, ACL_REVISION, accessMask, account) != FALSE,
             L"AddAccessAllowedAce() failed. Error %d\n")) {
    return false;
  }
  for (; index < count; ++index) {
    if (!ReadAce(oldDacl, index, ace) || !AppendAce(newDacl, ace)) {
      return false;
    }
  }
  return true;
}

bool BuildDacl(const Descriptor& oldDescriptor, PSID account, DWORD accessMask,
               OwnedProcessHeapMemory<ACL>& newDacl) {
  ACL* oldDacl = nullptr;
  ACL_SIZE_INFORMATION oldSize{};
  if (!FindDacl(oldDescriptor, oldDacl, oldSize)) {
    return false;
  }
  const DWORD newSize = oldSize.AclBytesInUse + internal::kSidOffset + GetLengthSid(account);
  return Allocate(newSize, newDacl) &&
         Check(InitializeAcl(newDacl.get(), newSize, ACL_REVISION) != FALSE,
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
    // Windows NT 4.0 lacks this function, but it also has no auto-inherited or protected DACLs.
    return true;
  }
  SECURITY_DESCRIPTOR_CONTROL old = 0;
  DWORD revision = 0;
  if (!Check(GetSecurityDescriptorControl(from, &old, &revision) != FALSE,
             L"GetSecurityDescriptorControl() failed.Error %d\n")) {
    return false;
  }
  const SECURITY_DESCRIPTOR_CONTROL bits = InheritanceControl(old);
  return bits == 0 || Check(setControl(to, bits, bits) != FALSE,
                            L"SetSecurityDescriptorControl() failed.Error %d\n");
}

}  // namespace

BOOL AddFileAccessRights(const wchar_t* path, const wchar_t* sid, DWORD accessMask) {
  OwnedLocalMemory<void> account;
  if (ConvertStringSidToSidW(sid, account.Receive()) == FALSE) {
    return FALSE;
  }
  Descriptor oldDescriptor;
  OwnedProcessHeapMemory<ACL> newDacl;
  SECURITY_DESCRIPTOR newDescriptor{};
  const bool isWritten =
      ReadDescriptor(path, oldDescriptor) &&
      Check(InitializeSecurityDescriptor(&newDescriptor, SECURITY_DESCRIPTOR_REVISION) != FALSE,
            L"InitializeSecurityDescriptor() failed.Error %d\n") &&
      BuildDacl(oldDescriptor, account.get(), accessMask, newDacl) &&
      Check(SetSecurityDescriptorDacl(&newDescriptor, TRUE, newDacl.get(), FALSE) != FALSE,
            L"SetSecurityDescriptorDacl() failed. Error %d\n") &&
      CarryInheritanceOver(oldDescriptor.memory.get(), &newDescriptor) &&
      Check(SetFileSecurityW(path, DACL_SECURITY_INFORMATION, &newDescriptor) != FALSE,
            L"SetFileSecurity() failed. Error %d\n");
  return isWritten ? TRUE : FALSE;
}

}  // namespace kelvo
