#pragma once

namespace kelvo {

// Which Windows is running. IsWin95 is true for Windows 95 only, every other function for its
// release and later ones: IsWin98 on Windows 9x, the rest on NT. None tells a workstation from a
// server, so IsWinServer2008 is true on Windows Vista and IsWinServer2012 on Windows 8.
//
// Each call asks GetVersionExW, and returns false when that fails. From Windows 8.1 on it reports
// 6.2 to a program whose manifest does not name 8.1 or later.

// Windows 9x with minor version 0.
bool IsWin95();
// Windows 9x with any other minor version, Windows Millennium Edition included.
bool IsWin98();

// NT of the release in the name, or a later one.
bool IsWinNT();
bool IsWin2000();
bool IsWinXP();
bool IsWinVista();
bool IsWin7();
bool IsWin8();

// True on the 64-bit Windows XP too, which has the version of Server 2003.
bool IsWinServer2003();

// The same as IsWinVista and IsWin8.
bool IsWinServer2008();
bool IsWinServer2012();

// The library is built for 64-bit Windows only.
constexpr bool IsWin64Bit() { return true; }
constexpr bool Is32BitOnWin64() { return false; }

}  // namespace kelvo
