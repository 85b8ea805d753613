#pragma once

#include <windows.h>

#include <array>

namespace kelvo {

// The window station and the desktop that the user at the screen works on.
inline constexpr const wchar_t* kInteractiveStation = L"WinSta0";
inline constexpr const wchar_t* kInteractiveDesktop = L"Default";

// The names of a window station and of a desktop on it; a name that was not read is empty.
struct DesktopNames {
  // 520 bytes.
  using Name = std::array<wchar_t, 260>;

  // Each empty when it was not read.
  Name station{};
  Name desktop{};
};

// Reads the station's name and then the desktop's (GetUserObjectInformationW). When one cannot be
// read or does not fit, stops there, traces which (lib/trace/trace_sink.h) and returns false.
bool ReadDesktopNames(HWINSTA station, HDESK desktop, DesktopNames& names);

// Returns TRUE when this process's window station is "WinSta0" and this thread's desktop is
// "Default", both in any ASCII letter case; FALSE otherwise, and when a name cannot be read, which
// is traced.
BOOL IsOnInteractiveDesktop();

}  // namespace kelvo
