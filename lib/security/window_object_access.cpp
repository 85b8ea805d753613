#include "lib/security/window_object_access.h"

#include <aclapi.h>

#include <array>
#include <cstddef>

#include "lib/platform/owned.h"
#include "lib/security/access_control_entry.h"
#include "lib/security/access_control_list.h"
#include "lib/security/canonical_order.h"
#include "lib/security/internal/guarded_operation.h"

namespace kelvo {

namespace {

// The values that differ between window stations and desktops. Each text is traced when its step
// fails. `allocationFailed` is traced when there is no memory for the new DACL. After any failure,
// `cleanUp` is traced last, even if no exception occurred.
struct WindowObjectKind {
  ACCESS_MASK mask;
  const wchar_t* readFailed;
  const wchar_t* allocationFailed;
  const wchar_t* initializeFailed;
  const wchar_t* copyFailed;
  const wchar_t* addFailed;
  const wchar_t* writeFailed;
  const wchar_t* cleanUp;
};

constexpr WindowObjectKind kWindowStation = {
    .mask = STANDARD_RIGHTS_REQUIRED | WINSTA_ALL_ACCESS,
    .readFailed = L"AllowAccessToWinSta GetSecurityInfo Failed",
    .allocationFailed = L"AllowAccessToWinSta _malloca Failed",
    .initializeFailed = L"AllowAccessToWinSta InitializeAcl Failed",
    .copyFailed = L"AllowAccessToWinSta CopyACL Failed",
    .addFailed = L"AllowAccessToWinSta AddAce Failed",
    .writeFailed = L"AllowAccessToWinSta SetSecurityInfo Failed",
    .cleanUp = L"AllowAccessToWinSta exception caught in __finally"};

constexpr WindowObjectKind kDesktop = {
    .mask = STANDARD_RIGHTS_REQUIRED | DESKTOP_READOBJECTS | DESKTOP_CREATEWINDOW |
            DESKTOP_CREATEMENU | DESKTOP_HOOKCONTROL | DESKTOP_JOURNALRECORD |
            DESKTOP_JOURNALPLAYBACK | DESKTOP_ENUMERATE | DESKTOP_WRITEOBJECTS |
            DESKTOP_SWITCHDESKTOP,
    .readFailed = L"AllowAccessToDesktop GetSecurityInfo Failed",
    .allocationFailed = L"AllowAccessToDesktop _alloc Failed",
    .initializeFailed = L"AllowAccessToDesktop Init ACL Failed",
    .copyFailed = L"AllowAccessToDesktop CopyACL Failed",
    .addFailed = L"AllowAccessToDesktop AddAce Failed",
    .writeFailed = L"AllowAccessToDesktop SetSecurityInfo Failed",
    .cleanUp = L"AllowAccessToDesktop exception caught in __finally"};

// A new DACL of up to kStackSize bytes is built on the stack, and a larger one on the heap.
// kStackSize is the size of the largest block that _malloca takes from the stack on x64: 1,024
// bytes, minus 16 bytes for _malloca's marker.
constexpr std::size_t kStackSize = 1024 - 16;

bool BuildAcl(const WindowObjectKind& kind, const ACL* dacl, ACCESS_ALLOWED_ACE* ace, ACL* built,
              DWORD size) {
  if (!internal::Check(InitializeAcl(built, size, ACL_REVISION) != FALSE, kind.initializeFailed)) {
    return false;
  }
  if (!internal::Check(CopyACL(built, dacl) != FALSE, kind.copyFailed)) {
    return false;
  }
  // If GetACEInsertionIndex returns kNoAceIndex, AddAce appends the ACE.
  return internal::Check(AddAce(built, ACL_REVISION, GetACEInsertionIndex(built, ace), ace,
                                ace->Header.AceSize) != FALSE,
                         kind.addFailed);
}

bool ReplaceDacl(const WindowObjectKind& kind, HANDLE object, const ACL* dacl,
                 ACCESS_ALLOWED_ACE* ace) {
  // The ACL structure needs an alignment of only 2 bytes, but the ACEs in it need 4.
  alignas(DWORD) std::array<std::byte, kStackSize> stack{};
  const DWORD size = CalculateACLSize(dacl, nullptr, 0, &ace, 1);
  // Memory from the heap is never freed, as window_object_access.h says.
  void* const scratch =
      size <= stack.size() ? stack.data() : HeapAlloc(GetProcessHeap(), HEAP_ZERO_MEMORY, size);
  if (!internal::Check(scratch != nullptr, kind.allocationFailed)) {
    return false;
  }
  auto* const built = static_cast<ACL*>(scratch);
  if (!BuildAcl(kind, dacl, ace, built, size)) {
    return false;
  }
  return internal::Check(SetSecurityInfo(object, SE_WINDOW_OBJECT, DACL_SECURITY_INFORMATION,
                                         nullptr, nullptr, built, nullptr) == ERROR_SUCCESS,
                         kind.writeFailed);
}

bool AllowInDacl(const WindowObjectKind& kind, PSID sid, HANDLE object,
                 OwnedLocalMemory<void>& descriptor) {
  ACL* dacl = nullptr;
  if (!internal::Check(
          GetSecurityInfo(object, SE_WINDOW_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr,
                          &dacl, nullptr, descriptor.Receive()) == ERROR_SUCCESS,
          kind.readFailed)) {
    return false;
  }
  // The ACE is never freed, as window_object_access.h says.
  ACCESS_ALLOWED_ACE* const ace = AllocateACE(ACCESS_ALLOWED_ACE_TYPE, 0, kind.mask, sid);
  if (dacl == nullptr) {
    return true;
  }
  return ace != nullptr &&
         (FindACEInACL(dacl, ace) != kNoAceIndex || ReplaceDacl(kind, object, dacl, ace));
}

BOOL AllowAccess(const WindowObjectKind& kind, PSID sid, HANDLE object) {
  OwnedLocalMemory<void> descriptor;
  return internal::GuardedOperation(
      kind.cleanUp, [&] { return AllowInDacl(kind, sid, object, descriptor); },
      [&] { descriptor.reset(); });
}

}  // namespace

BOOL AllowAccessToWinSta(PSID sid, HWINSTA station) {
  return AllowAccess(kWindowStation, sid, station);
}

BOOL AllowAccessToDesktop(PSID sid, HDESK desktop) { return AllowAccess(kDesktop, sid, desktop); }

}  // namespace kelvo
