#pragma once

namespace kelvo {

// These functions report which version of Windows is running. None of them distinguishes a
// workstation from a server, so IsWinServer2008 returns true on Windows Vista, and IsWinServer2012
// returns true on Windows 8.
//
// Every function except IsWin64Bit and Is32BitOnWin64 calls GetVersionExW, and does not cache the
// result. When GetVersionExW fails, the function returns false. On Windows 8.1 and later,
// GetVersionExW reports version 6.2 (Windows 8) to a program whose manifest does not list
// Windows 8.1 or a later version.

// Returns true on Windows 95, the only Windows 9x release with minor version 0.
bool IsWin95();
// Returns true on every Windows 9x release after Windows 95, including Windows Millennium Edition.
bool IsWin98();

// IsWinNT returns true on every NT release. Each of the functions from IsWin2000 to IsWin8 returns
// true on the release in the function's name, and on every later NT release.
bool IsWinNT();
bool IsWin2000();
bool IsWinXP();
bool IsWinVista();
bool IsWin7();
bool IsWin8();

// Returns true on Windows Server 2003 and every later NT release. Also returns true on the x64
// edition of Windows XP, which has the same version number as Windows Server 2003.
bool IsWinServer2003();

// IsWinServer2008 is the same as IsWinVista, and IsWinServer2012 is the same as IsWin8.
bool IsWinServer2008();
bool IsWinServer2012();

// The results of these two functions are constant, since the library is built only for 64-bit
// Windows.
constexpr bool IsWin64Bit() { return true; }
constexpr bool Is32BitOnWin64() { return false; }

}  // namespace kelvo
