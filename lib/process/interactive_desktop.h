#pragma once

#include <windows.h>

#include <array>

namespace kelvo {

// The names of the interactive window station and of its default desktop.
inline constexpr const wchar_t* kInteractiveStation = L"WinSta0";
inline constexpr const wchar_t* kInteractiveDesktop = L"Default";

// The names of a window station and of a desktop on it.
struct DesktopNames {
  // Room for a name of up to 259 characters and its NUL.
  using Name = std::array<wchar_t, 260>;

  // A name that was not read is empty.
  Name station{};
  Name desktop{};
};

// Reads the window station's name, then the desktop's name (GetUserObjectInformationW). When a name
// cannot be read or does not fit, reads no further name, traces which of the two names could not be
// read (lib/trace/trace_sink.h) and returns false.
bool ReadDesktopNames(HWINSTA station, HDESK desktop, DesktopNames& names);

// Returns TRUE when this process's window station is "WinSta0" and the calling thread's desktop is
// "Default", regardless of ASCII letter case. Otherwise, or when a name cannot be read, returns
// FALSE. Traces a failure to read a name.
BOOL IsOnInteractiveDesktop();

}  // namespace kelvo
