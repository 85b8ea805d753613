#include "tests/support/desktop_scope.h"

namespace kelvo::test {

namespace {

std::wstring NameOf(HANDLE object) {
  wchar_t name[260] = L"";
  DWORD needed = 0;
  GetUserObjectInformationW(object, UOI_NAME, name, sizeof(name), &needed);
  return name;
}

// Wine closes a desktop, and nobody finds it any more, a second after its last thread has left it.
DWORD WINAPI StayOnFirstDesktop(void* /*unused*/) {
  Sleep(INFINITE);
  return 0;
}

}  // namespace

DesktopScope::DesktopScope(const wchar_t* station, const wchar_t* desktop) {
  [[maybe_unused]] static const HANDLE stays =
      CreateThread(nullptr, 0, StayOnFirstDesktop, nullptr, 0, nullptr);
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

}  // namespace kelvo::test
