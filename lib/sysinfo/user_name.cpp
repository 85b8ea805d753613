#include "lib/sysinfo/user_name.h"

#include <lmcons.h>

#include "lib/platform/module.h"

namespace kelvo {

namespace {

// Returns an empty string when the name has more than `maxLength` characters.
WString AccountName(DWORD maxLength) {
  DWORD size = maxLength + 1;
  WString buffer(size, L'\0');
  return GetUserNameW(buffer.data(), &size) != FALSE ? WString(buffer.c_str()) : WString();
}

}  // namespace

WString GetAccountName() { return AccountName(UNLEN); }

WString GetUserNameInFormat(EXTENDED_NAME_FORMAT format) {
  if (format == NameUnknown) {
    return {};
  }
  const OwnedModule library(LoadLibraryW(L"secur32.dll"));
  auto* const getName = KELVO_FIND_FUNCTION(library.get(), GetUserNameExW);
  if (getName == nullptr) {
    return {};
  }
  ULONG size = 256;
  WString buffer(size, L'\0');
  BOOLEAN found = getName(format, buffer.data(), &size);
  if (found == FALSE && GetLastError() == ERROR_MORE_DATA) {
    buffer.resize(size);
    found = getName(format, buffer.data(), &size);
  }
  return found != FALSE ? WString(buffer.c_str()) : WString();
}

WString GetUserNameFQ() {
  constexpr DWORD kMaxLength = 100;
  const WString name = GetUserNameInFormat(NameUserPrincipal);
  return name.empty() ? AccountName(kMaxLength) : name;
}

}  // namespace kelvo
