#include "lib/security/deny_ace_removal.h"

#include <aclapi.h>

#include "lib/platform/owned.h"
#include "lib/security/internal/ace_view.h"
#include "lib/security/internal/guarded_operation.h"

namespace kelvo {

namespace {

bool IsDeny(const ACCESS_ALLOWED_ACE& ace) {
  return ace.Header.AceType == ACCESS_DENIED_ACE_TYPE ||
         ace.Header.AceType == ACCESS_DENIED_OBJECT_ACE_TYPE;
}

// Stops before index 0, whose entry is never examined. A list without entries starts at an index
// that GetAce refuses.
bool DeleteDenyAces(PSID sid, ACL* dacl, DWORD aceCount) {
  for (DWORD index = aceCount - 1; index > 0; --index) {
    const ACCESS_ALLOWED_ACE* const ace = internal::AceAt(dacl, index);
    const bool isDeny = ace != nullptr && IsDeny(*ace);
    const PSID denied = isDeny ? internal::SidOfAce(ace) : nullptr;
    if (ace == nullptr || (isDeny && denied == nullptr)) {
      return internal::StepFailed(L"DeleteDenyACEofObject GetAce Failed");
    }
    if (isDeny && EqualSid(denied, sid) != FALSE) {
      DeleteAce(dacl, index);
    }
  }
  return true;
}

bool DeleteDenyAcesOfObject(PSID sid, HANDLE object, SE_OBJECT_TYPE type,
                            OwnedLocalMemory<void>& descriptor) {
  ACL* dacl = nullptr;
  if (GetSecurityInfo(object, type, DACL_SECURITY_INFORMATION, nullptr, nullptr, &dacl, nullptr,
                      descriptor.Receive()) != ERROR_SUCCESS) {
    return internal::StepFailed(L"DeleteDenyACEofObject GetSecurityInfo Failed");
  }
  if (dacl == nullptr) {
    return true;
  }
  ACL_SIZE_INFORMATION size{};
  if (!internal::QueryAclSize(dacl, size)) {
    return internal::StepFailed(L"DeleteDenyACEofObject GetAclInformation Failed");
  }
  if (!DeleteDenyAces(sid, dacl, size.AceCount)) {
    return false;
  }
  // Also when nothing was deleted. The text names GetAce, although it is the write that failed.
  return SetSecurityInfo(object, type, DACL_SECURITY_INFORMATION, nullptr, nullptr, dacl,
                         nullptr) == ERROR_SUCCESS ||
         internal::StepFailed(L"DeleteDenyACEofObject SetSecurityInfo GetAce Failed");
}

}  // namespace

BOOL DeleteDenyACEofObject(PSID sid, HANDLE object, SE_OBJECT_TYPE type) {
  OwnedLocalMemory<void> descriptor;
  return internal::GuardedOperation(
      L"DeleteDenyACEofObject exception caught in __finally",
      [&] { return DeleteDenyAcesOfObject(sid, object, type, descriptor); },
      [&] { descriptor.reset(); });
}

}  // namespace kelvo
