#pragma once

#include <windows.h>

#include <string>

namespace kelvo::test {

// Puts this process on the window station and this thread on the desktop of the given names, until
// it is destroyed. Makes those that do not exist. Null leaves the process where it is.
struct DesktopScope {
  DesktopScope(const wchar_t* stationName, const wchar_t* desktopName) {
    constexpr DWORD kAccess = 0x1FF | READ_CONTROL | WRITE_DAC;
    // Wine closes a desktop, and nobody finds it any more, a second after its last thread left it.
    constexpr auto sleep = [](void*) -> DWORD { return SleepEx(INFINITE, FALSE); };
    [[maybe_unused]] static const HANDLE stays =
        CreateThread(nullptr, 0, sleep, nullptr, 0, nullptr);
    if (stationName != nullptr) {
      station = CreateWindowStationW(stationName, 0, kAccess, nullptr);
      SetProcessWindowStation(station);
    }
    if (desktopName != nullptr) {
      desktop = CreateDesktopW(desktopName, nullptr, nullptr, 0, kAccess, nullptr);
      SetThreadDesktop(desktop);
    }
  }
  // On a desktop that Wine opens on this process's own display: that of the first desktop belongs
  // to whoever was there first, and may be none. A process keeps the display of its first window.
  DesktopScope()
      : DesktopScope(nullptr, (L"kelvo " + std::to_wstring(GetCurrentProcessId())).c_str()) {}
  DesktopScope(const DesktopScope&) = delete;
  ~DesktopScope() {
    SetProcessWindowStation(previousStation);
    SetThreadDesktop(previousDesktop);
    CloseDesktop(desktop);
    CloseWindowStation(station);
  }

  HWINSTA previousStation = GetProcessWindowStation();
  HDESK previousDesktop = GetThreadDesktop(GetCurrentThreadId());
  HWINSTA station = nullptr;
  HDESK desktop = nullptr;
};

// "station\desktop" of this process and thread.
inline std::wstring CurrentDesktop() {
  wchar_t station[99] = L"", desktop[99] = L"";
  HDESK const current = GetThreadDesktop(GetCurrentThreadId());
  GetUserObjectInformationW(GetProcessWindowStation(), UOI_NAME, station, 198, nullptr);
  GetUserObjectInformationW(current, UOI_NAME, desktop, 198, nullptr);
  return station + std::wstring(L"\\") + desktop;
}

}  // namespace kelvo::test
