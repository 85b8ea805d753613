#include "lib/security/token_object_access.h"

#include <cwchar>
#include <string_view>

#include "lib/platform/owned.h"
#include "lib/security/deny_ace_removal.h"
#include "lib/security/internal/guarded_operation.h"
#include "lib/security/window_object_access.h"

namespace kelvo {

namespace {

struct TokenHolders {
  OwnedLocalMemory<TOKEN_USER> user;
  OwnedLocalMemory<TOKEN_GROUPS> groups;
};

template <typename Information>
bool Read(HANDLE token, TOKEN_INFORMATION_CLASS kind, const wchar_t* failure,
          OwnedLocalMemory<Information>& information) {
  DWORD size = 0;
  GetTokenInformation(token, kind, nullptr, 0, &size);
  information.reset(static_cast<Information*>(LocalAlloc(LPTR, size)));
  if (!internal::Check(information.get() != nullptr,
                       L"AllowTokenFullAccessToObject LocalAlloc Failed")) {
    return false;
  }
  return internal::Check(GetTokenInformation(token, kind, information.get(), size, &size) != FALSE,
                         failure);
}

bool DeleteDenyAcesOfUser(HANDLE token, HANDLE object, SE_OBJECT_TYPE type, TokenHolders& holders) {
  if (!Read(token, TokenUser, L"AllowTokenFullAccessToObject GetTokenInformation User Failed",
            holders.user)) {
    return false;
  }
  return internal::Check(DeleteDenyACEofObject(holders.user.get()->User.Sid, object, type) != FALSE,
                         L"AllowTokenFullAccessToObject DeleteDenyACEofObject User Failed");
}

bool DeleteDenyAcesOfGroups(HANDLE token, HANDLE object, SE_OBJECT_TYPE type,
                            TokenHolders& holders) {
  if (!Read(token, TokenGroups, L"AllowTokenFullAccessToObject GetTokenInformation Group Failed",
            holders.groups)) {
    return false;
  }
  const TOKEN_GROUPS& groups = *holders.groups.get();
  for (DWORD index = 0; index < groups.GroupCount; ++index) {
    if (!internal::Check(DeleteDenyACEofObject(groups.Groups[index].Sid, object, type) != FALSE,
                         L"AllowTokenFullAccessToObject DeleteDenyACEofObject Groups Failed")) {
      return false;
    }
  }
  return true;
}

bool NamesDesktop(const wchar_t* typeName) {
  constexpr std::wstring_view kDesk = L"desk";
  for (const wchar_t* at = typeName; at != nullptr && *at != L'\0'; ++at) {
    if (_wcsnicmp(at, kDesk.data(), kDesk.size()) == 0) {
      return true;
    }
  }
  return false;
}

bool AllowUser(PSID user, HANDLE object, const wchar_t* typeName) {
  if (NamesDesktop(typeName)) {
    return internal::Check(AllowAccessToDesktop(user, static_cast<HDESK>(object)) != FALSE,
                           L"AllowTokenFullAccessToObject AllowAccessToDesktop Failed");
  }
  return internal::Check(AllowAccessToWinSta(user, static_cast<HWINSTA>(object)) != FALSE,
                         L"AllowTokenFullAccessToObject AllowAccessToWinSta Failed");
}

}  // namespace

BOOL AllowTokenFullAccessToObject(HANDLE token, HANDLE object, SE_OBJECT_TYPE type,
                                  const wchar_t* typeName) {
  if (token == nullptr || object == nullptr) {
    return FALSE;
  }
  TokenHolders holders;
  return internal::GuardedOperation(
      // Traced last when the steps below fail, even without an exception.
      L"AllowTokenFullAccessToObject exception caught in __finally",
      [&] {
        if (!DeleteDenyAcesOfUser(token, object, type, holders) ||
            !DeleteDenyAcesOfGroups(token, object, type, holders)) {
          return false;
        }
        return internal::Check(type == SE_WINDOW_OBJECT,
                               L"AllowTokenFullAccessToObject Wrong Object") &&
               AllowUser(holders.user.get()->User.Sid, object, typeName);
      },
      [&] { holders = {}; });
}

}  // namespace kelvo
