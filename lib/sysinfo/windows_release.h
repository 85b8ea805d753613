#pragma once

#include <windows.h>

namespace kelvo {

// Which Windows release runs: each answer means this release or a later one of its line, and says
// nothing about workstation or server, so the server names answer exactly as their workstation
// twins do. The forms without an argument ask GetVersionExW afresh, whose record is all zero when
// it fails; every answer is then false. A program without a manifest that names Windows 8.1 or
// later is told 6.2 there.

bool IsWin95(const OSVERSIONINFOW& version);
// Windows Millennium Edition counts too.
bool IsWin98(const OSVERSIONINFOW& version);
bool IsWinNT(const OSVERSIONINFOW& version);
bool IsWin2000(const OSVERSIONINFOW& version);
bool IsWinXP(const OSVERSIONINFOW& version);
bool IsWinVista(const OSVERSIONINFOW& version);
bool IsWin7(const OSVERSIONINFOW& version);
bool IsWin8(const OSVERSIONINFOW& version);
bool IsWinServer2003(const OSVERSIONINFOW& version);
bool IsWinServer2008(const OSVERSIONINFOW& version);
bool IsWinServer2012(const OSVERSIONINFOW& version);

bool IsWin95();
bool IsWin98();
bool IsWinNT();
bool IsWin2000();
bool IsWinXP();
bool IsWinVista();
bool IsWin7();
bool IsWin8();
bool IsWinServer2003();
bool IsWinServer2008();
bool IsWinServer2012();

// The library is built for 64-bit Windows only.
constexpr bool IsWin64Bit() { return true; }
constexpr bool Is32BitOnWin64() { return false; }

}  // namespace kelvo
