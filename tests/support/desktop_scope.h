#pragma once

#include <windows.h>

#include <string>

namespace kelvo::test {

// Puts this process on the window station and this thread on the desktop of the given names, both
// made when they are not there, as long as it lives. Null leaves the process where it is.
class DesktopScope {
 public:
  DesktopScope(const wchar_t* station, const wchar_t* desktop);
  DesktopScope(const DesktopScope&) = delete;
  DesktopScope& operator=(const DesktopScope&) = delete;
  ~DesktopScope();

  [[nodiscard]] HWINSTA Station() const { return station_; }
  [[nodiscard]] HDESK Desktop() const { return desktop_; }

 private:
  HWINSTA previousStation_ = GetProcessWindowStation();
  HDESK previousDesktop_ = GetThreadDesktop(GetCurrentThreadId());
  HWINSTA station_ = nullptr;
  HDESK desktop_ = nullptr;
};

// "station\desktop" of this process and thread.
std::wstring CurrentDesktop();

}  // namespace kelvo::test
