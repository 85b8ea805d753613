#include "lib/security/deny_ace_removal.h"

#include <aclapi.h>

#include "lib/platform/owned.h"
#include "lib/security/internal/ace_view.h"
#include "lib/security/internal/guarded_operation.h"

namespace kelvo {

namespace {

bool IsDeny(const void* ace) {
  const BYTE type = internal::HeaderOfAce(ace).AceType;
  return type == ACCESS_DENIED_ACE_TYPE || type == ACCESS_DENIED_OBJECT_ACE_TYPE;
}

// Never examines the ACE at index 0. Returns false for an empty DACL: the loop then begins at index
// MAXDWORD, for which GetAce fails.
bool DeleteDenyAces(PSID sid, ACL* dacl, DWORD aceCount) {
  for (DWORD index = aceCount - 1; index > 0; --index) {
    const void* const ace = internal::AceAt(dacl, index);
    if (!internal::Check(ace != nullptr, L"DeleteDenyACEofObject GetAce Failed")) {
      return false;
    }
    if (!IsDeny(ace)) {
      continue;
    }
    const PSID denied = internal::SidOfAce(ace);
    // An ACE that is too short for its SID is treated as if GetAce had failed.
    if (!internal::Check(denied != nullptr, L"DeleteDenyACEofObject GetAce Failed")) {
      return false;
    }
    if (EqualSid(denied, sid) != FALSE) {
      DeleteAce(dacl, index);
    }
  }
  return true;
}

bool DeleteDenyAcesOfObject(PSID sid, HANDLE object, SE_OBJECT_TYPE type,
                            OwnedLocalMemory<void>& descriptor) {
  ACL* dacl = nullptr;
  if (!internal::Check(GetSecurityInfo(object, type, DACL_SECURITY_INFORMATION, nullptr, nullptr,
                                       &dacl, nullptr, descriptor.Receive()) == ERROR_SUCCESS,
                       L"DeleteDenyACEofObject GetSecurityInfo Failed")) {
    return false;
  }
  if (dacl == nullptr) {
    return true;
  }
  ACL_SIZE_INFORMATION size{};
  if (!internal::Check(internal::QueryAclSize(dacl, size),
                       L"DeleteDenyACEofObject GetAclInformation Failed")) {
    return false;
  }
  if (!DeleteDenyAces(sid, dacl, size.AceCount)) {
    return false;
  }
  // Writes the DACL back even when no ACE was deleted. The failure message also names GetAce,
  // although only SetSecurityInfo can fail here.
  return internal::Check(SetSecurityInfo(object, type, DACL_SECURITY_INFORMATION, nullptr, nullptr,
                                         dacl, nullptr) == ERROR_SUCCESS,
                         L"DeleteDenyACEofObject SetSecurityInfo GetAce Failed");
}

}  // namespace

BOOL DeleteDenyACEofObject(PSID sid, HANDLE object, SE_OBJECT_TYPE type) {
  OwnedLocalMemory<void> descriptor;
  return internal::GuardedOperation(
      // Traced last when the steps below fail, even without an exception.
      L"DeleteDenyACEofObject exception caught in __finally",
      [&] { return DeleteDenyAcesOfObject(sid, object, type, descriptor); },
      [&] { descriptor.reset(); });
}

}  // namespace kelvo
