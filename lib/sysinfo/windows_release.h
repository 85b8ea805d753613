#pragma once

namespace kelvo {

// These functions report which Windows is running. None distinguishes a workstation from a server,
// so IsWinServer2008 is true on Windows Vista and IsWinServer2012 on Windows 8.
//
// Every function except IsWin64Bit and Is32BitOnWin64 calls GetVersionExW each time and returns
// false when GetVersionExW fails. On Windows 8.1 and later, GetVersionExW reports 6.2 to a program
// whose manifest does not list 8.1 or later.

// Returns true on Windows 9x with minor version 0, which only Windows 95 has.
bool IsWin95();
// Returns true on every Windows 9x with another minor version, including Windows Millennium
// Edition.
bool IsWin98();

// IsWinNT returns true on every NT release. Each of the five functions after it returns true on the
// release in its name and on every later NT release.
bool IsWinNT();
bool IsWin2000();
bool IsWinXP();
bool IsWinVista();
bool IsWin7();
bool IsWin8();

// Returns true on Windows Server 2003 and later, and on 64-bit Windows XP, which has the same
// version as Server 2003.
bool IsWinServer2003();

// IsWinServer2008 is the same as IsWinVista, and IsWinServer2012 is the same as IsWin8.
bool IsWinServer2008();
bool IsWinServer2012();

// The results of these two functions are constant, since the library is built for 64-bit Windows
// only.
constexpr bool IsWin64Bit() { return true; }
constexpr bool Is32BitOnWin64() { return false; }

}  // namespace kelvo
