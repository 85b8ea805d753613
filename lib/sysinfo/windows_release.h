#pragma once

namespace kelvo {

// Which Windows is running. IsWin95 is true only on Windows 95. Every other function is true on its
// release and later ones: IsWin98 on Windows 9x, the rest on NT. None distinguishes a workstation
// from a server, so IsWinServer2008 is true on Windows Vista and IsWinServer2012 on Windows 8.
//
// Each call queries GetVersionExW and returns false when that fails. On Windows 8.1 and later, that
// reports 6.2 to a program whose manifest does not name 8.1 or later.

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

// Also true on 64-bit Windows XP, which has the version of Server 2003.
bool IsWinServer2003();

// The same as IsWinVista and IsWin8.
bool IsWinServer2008();
bool IsWinServer2012();

// The library is built for 64-bit Windows only.
constexpr bool IsWin64Bit() { return true; }
constexpr bool Is32BitOnWin64() { return false; }

}  // namespace kelvo
