#pragma once

#include <windows.h>

#include "lib/platform/owned.h"

namespace kelvo::internal {

// Window stations and desktops, including those from GetProcessWindowStation and GetThreadDesktop:
// Windows refuses to close a handle that the process or a thread is using.
struct WindowStationTraits {
  using Handle = HWINSTA;
  static Handle None() { return nullptr; }
  static void Close(Handle handle) { CloseWindowStation(handle); }
};
using OwnedWindowStation = Owned<WindowStationTraits>;

struct DesktopTraits {
  using Handle = HDESK;
  static Handle None() { return nullptr; }
  static void Close(Handle handle) { CloseDesktop(handle); }
};
using OwnedDesktop = Owned<DesktopTraits>;

}  // namespace kelvo::internal
