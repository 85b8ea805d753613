#pragma once

#include <windows.h>

#include <string>

namespace kelvo::test {

// Assigns this process to a window station and this thread to a desktop until this object is
// destroyed. Creates a missing station or desktop. A null name means no change.
struct DesktopScope {
  DesktopScope(const wchar_t* stationName, const wchar_t* desktopName) {
    constexpr DWORD kAccess = 0x1FF | READ_CONTROL | WRITE_DAC;
    // Keeps a thread on the process's initial desktop, since Wine removes a desktop one second
    // after its last thread has left it.
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
  // Uses a new desktop, which Wine opens on this process's X11 display. (The initial desktop is on
  // the display, if any, of the Wine prefix's first process.) A process stays on the display of its
  // first window, so create this object before any window.
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

// Returns the names of this process's station and this thread's desktop, as "station\desktop".
inline std::wstring CurrentDesktop() {
  wchar_t station[99] = L"", desktop[99] = L"";
  HDESK const current = GetThreadDesktop(GetCurrentThreadId());
  GetUserObjectInformationW(GetProcessWindowStation(), UOI_NAME, station, 198, nullptr);
  GetUserObjectInformationW(current, UOI_NAME, desktop, 198, nullptr);
  return station + std::wstring(L"\\") + desktop;
}

}  // namespace kelvo::test
