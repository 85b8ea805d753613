#include "lib/sysinfo/computer_name.h"

#include <windows.h>

#include "lib/platform/module.h"

namespace kelvo {

namespace {

auto* FindGetComputerNameEx() {
  return KELVO_FIND_FUNCTION(GetModuleHandleW(L"kernel32.dll"), GetComputerNameExW);
}

WString FullyQualifiedDnsName() {
  auto* const getName = FindGetComputerNameEx();
  if (getName == nullptr) {
    return {};
  }
  DWORD length = 100;
  WString buffer(length, L'\0');
  BOOL found = getName(ComputerNameDnsFullyQualified, buffer.data(), &length);
  if (found == FALSE && GetLastError() == ERROR_MORE_DATA) {
    buffer.resize(length);
    found = getName(ComputerNameDnsFullyQualified, buffer.data(), &length);
  }
  return found != FALSE ? WString(buffer.c_str()) : WString();
}

}  // namespace

WString GetComputerNetbiosName() {
  WString buffer(MAX_COMPUTERNAME_LENGTH + 1, L'\0');
  DWORD length = MAX_COMPUTERNAME_LENGTH + 1;
  return GetComputerNameW(buffer.data(), &length) != FALSE ? WString(buffer.c_str()) : WString();
}

WString GetComputerNameFQ() {
  const WString name = FullyQualifiedDnsName();
  return name.empty() ? GetComputerNetbiosName() : name;
}

WString GetComputerDomain() {
  auto* const getName = FindGetComputerNameEx();
  if (getName == nullptr) {
    return {};
  }
  DWORD size = 0;
  getName(ComputerNameDnsDomain, nullptr, &size);
  DWORD length = size + 2;
  WString buffer(length, L'\0');
  return getName(ComputerNameDnsDomain, buffer.data(), &length) != FALSE ? WString(buffer.c_str())
                                                                         : WString();
}

}  // namespace kelvo
