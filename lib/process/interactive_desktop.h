#pragma once

#include <windows.h>

#include <array>

namespace kelvo {

inline constexpr const wchar_t* kInteractiveStation = L"WinSta0";
inline constexpr const wchar_t* kInteractiveDesktop = L"Default";

// The names of a window station and of a desktop on it; one that was not read is empty.
struct DesktopNames {
  // 520 bytes.
  using Name = std::array<wchar_t, 260>;
  Name station{};
  Name desktop{};
};

// Reads first the station's name and then the desktop's (GetUserObjectInformationW). Returns false,
// traces which and stops at one that cannot be read or does not fit.
bool ReadDesktopNames(HWINSTA station, HDESK desktop, DesktopNames& names);

// TRUE when this process's window station is "WinSta0" and this thread's desktop is "Default", both
// in whatever ASCII letter case; FALSE when not, and when a name cannot be read, which is traced.
BOOL IsOnInteractiveDesktop();

}  // namespace kelvo
