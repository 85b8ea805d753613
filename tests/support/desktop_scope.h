#pragma once

#include <windows.h>

#include <string>

namespace kelvo::test {

// Moves this process to a window station and this thread to a desktop until this object is
// destroyed. Creates a missing station or desktop. A null name keeps the current one.
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
  // Uses a new desktop, because Wine opens it on this process's X11 display. The prefix's first
  // desktop uses the X11 display of the prefix's first process, or none if that process had none. A
  // process keeps the X11 display of its first window.
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

// Returns "station\desktop" of this process and thread.
inline std::wstring CurrentDesktop() {
  wchar_t station[99] = L"", desktop[99] = L"";
  HDESK const current = GetThreadDesktop(GetCurrentThreadId());
  GetUserObjectInformationW(GetProcessWindowStation(), UOI_NAME, station, 198, nullptr);
  GetUserObjectInformationW(current, UOI_NAME, desktop, 198, nullptr);
  return station + std::wstring(L"\\") + desktop;
}

}  // namespace kelvo::test
