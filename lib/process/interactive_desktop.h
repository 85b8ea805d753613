#pragma once

#include <windows.h>

#include <array>

namespace kelvo {

// The interactive window station and its default desktop.
inline constexpr const wchar_t* kInteractiveStation = L"WinSta0";
inline constexpr const wchar_t* kInteractiveDesktop = L"Default";

// The names of a window station and of a desktop on it.
struct DesktopNames {
  // 520 bytes.
  using Name = std::array<wchar_t, 260>;

  // Empty when not read.
  Name station{};
  Name desktop{};
};

// Reads the window station's name, then the desktop's (GetUserObjectInformationW). Stops at a name
// that cannot be read or does not fit, traces which (lib/trace/trace_sink.h) and returns false.
bool ReadDesktopNames(HWINSTA station, HDESK desktop, DesktopNames& names);

// Returns TRUE when this process's window station is "WinSta0" and this thread's desktop is
// "Default", both in any ASCII letter case. Returns FALSE otherwise, and when a name cannot be
// read, which is traced.
BOOL IsOnInteractiveDesktop();

}  // namespace kelvo
