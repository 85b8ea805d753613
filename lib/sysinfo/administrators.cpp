#include "lib/sysinfo/administrators.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>

#include "lib/platform/owned.h"
#include "lib/sysinfo/windows_release.h"

namespace kelvo {

namespace {

struct AllocatedSid {
  using Handle = PSID;
  static Handle None() { return nullptr; }
  static void Close(Handle handle) { FreeSid(handle); }
};
using OwnedSid = Owned<AllocatedSid>;

// Returns the calling thread's impersonation token or, when the thread has none, the process's
// token.
OwnedKernelObject OpenEffectiveToken() {
  OwnedKernelObject token;
  if (!token.KeepIf(OpenThreadToken(GetCurrentThread(), TOKEN_QUERY, TRUE, token.Receive()) !=
                    FALSE) &&
      GetLastError() == ERROR_NO_TOKEN) {
    token.KeepIf(OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, token.Receive()) != FALSE);
  }
  return token;
}

OwnedSid MakeAdministratorsSid() {
  SID_IDENTIFIER_AUTHORITY authority = SECURITY_NT_AUTHORITY;
  OwnedSid sid;
  AllocateAndInitializeSid(&authority, 2, SECURITY_BUILTIN_DOMAIN_RID, DOMAIN_ALIAS_RID_ADMINS, 0,
                           0, 0, 0, 0, 0, sid.Receive());
  return sid;
}

}  // namespace

bool IsAdmin() {
  if (!IsWinNT()) {
    return true;
  }
  OwnedKernelObject token = OpenEffectiveToken();
  alignas(TOKEN_GROUPS) std::array<std::byte, 1024> buffer{};
  DWORD size = 0;
  if (!token ||
      GetTokenInformation(token.get(), TokenGroups, buffer.data(), buffer.size(), &size) == FALSE) {
    return false;
  }
  token.reset();
  const OwnedSid administrators = MakeAdministratorsSid();
  if (!administrators) {
    return false;
  }
  const auto& groups = *reinterpret_cast<const TOKEN_GROUPS*>(buffer.data());
  return std::ranges::any_of(std::span(&groups.Groups[0], groups.GroupCount),
                             [&](const SID_AND_ATTRIBUTES& group) {
                               return EqualSid(group.Sid, administrators.get()) != FALSE;
                             });
}

}  // namespace kelvo
