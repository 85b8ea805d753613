#include "tests/support/desktop_scope.h"

#include <aclapi.h>
#include <sddl.h>

#include "lib/platform/owned.h"

namespace kelvo::test {

namespace {

std::wstring NameOf(HANDLE object) {
  wchar_t name[260] = L"";
  DWORD needed = 0;
  GetUserObjectInformationW(object, UOI_NAME, name, sizeof(name), &needed);
  return name;
}

}  // namespace

DesktopScope::DesktopScope(const wchar_t* station, const wchar_t* desktop) {
  if (station != nullptr) {
    station_ =
        CreateWindowStationW(station, 0, WINSTA_ALL_ACCESS | READ_CONTROL | WRITE_DAC, nullptr);
    SetProcessWindowStation(station_);
  }
  if (desktop != nullptr) {
    desktop_ =
        CreateDesktopW(desktop, nullptr, nullptr, 0, 0x1FF | READ_CONTROL | WRITE_DAC, nullptr);
    SetThreadDesktop(desktop_);
  }
}

DesktopScope::~DesktopScope() {
  SetProcessWindowStation(previousStation_);
  SetThreadDesktop(previousDesktop_);
  CloseDesktop(desktop_);
  CloseWindowStation(station_);
}

std::wstring CurrentDesktop() {
  return NameOf(GetProcessWindowStation()) + L"\\" + NameOf(GetThreadDesktop(GetCurrentThreadId()));
}

std::wstring ReadDacl(HANDLE object, SE_OBJECT_TYPE type) {
  ACL* dacl = nullptr;
  OwnedLocalMemory<void> descriptor;
  OwnedLocalMemory<wchar_t> text;
  GetSecurityInfo(object, type, DACL_SECURITY_INFORMATION, nullptr, nullptr, &dacl, nullptr,
                  descriptor.Receive());
  ConvertSecurityDescriptorToStringSecurityDescriptorW(
      descriptor.get(), SDDL_REVISION_1, DACL_SECURITY_INFORMATION, text.Receive(), nullptr);
  return dacl != nullptr && text ? text.get() : L"none";
}

void WriteDacl(HANDLE object, const std::wstring& sddl, SE_OBJECT_TYPE type) {
  OwnedLocalMemory<void> descriptor;
  ACL* dacl = nullptr;
  BOOL present = FALSE;
  BOOL defaulted = FALSE;
  if (sddl != L"none") {
    ConvertStringSecurityDescriptorToSecurityDescriptorW(sddl.c_str(), SDDL_REVISION_1,
                                                         descriptor.Receive(), nullptr);
    GetSecurityDescriptorDacl(descriptor.get(), &present, &dacl, &defaulted);
  }
  SetSecurityInfo(object, type, DACL_SECURITY_INFORMATION, nullptr, nullptr, dacl, nullptr);
}

}  // namespace kelvo::test
