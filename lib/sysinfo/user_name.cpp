#include "lib/sysinfo/user_name.h"

#include <windows.h>

#include <lmcons.h>
#define SECURITY_WIN32
#include <security.h>

#include "lib/platform/module.h"

namespace kelvo {

namespace {

// Empty when the name has more than `longest` characters.
WString AccountName(DWORD longest) {
  DWORD size = longest + 1;
  WString buffer(size, L'\0');
  return GetUserNameW(buffer.data(), &size) != FALSE ? WString(buffer.c_str()) : WString();
}

WString UserPrincipalName() {
  const OwnedModule library(LoadLibraryW(L"secur32.dll"));
  auto* const getName = KELVO_FIND_FUNCTION(library.get(), GetUserNameExW);
  if (getName == nullptr) {
    return {};
  }
  ULONG size = 256;
  WString buffer(size, L'\0');
  BOOLEAN found = getName(NameUserPrincipal, buffer.data(), &size);
  if (found == FALSE && GetLastError() == ERROR_MORE_DATA) {
    buffer.resize(size);
    found = getName(NameUserPrincipal, buffer.data(), &size);
  }
  return found != FALSE ? WString(buffer.c_str()) : WString();
}

}  // namespace

WString GetAccountName() { return AccountName(UNLEN); }

WString GetUserNameFQ() {
  constexpr DWORD kLongest = 100;
  const WString name = UserPrincipalName();
  return name.empty() ? AccountName(kLongest) : name;
}

}  // namespace kelvo
