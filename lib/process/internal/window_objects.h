#pragma once

#include <windows.h>

#include "lib/platform/owned.h"

namespace kelvo::internal {

// Types that own the handles of window stations and desktops. Objects of these types can safely own
// a handle from GetProcessWindowStation or GetThreadDesktop: Windows does not close a handle that
// this process or one of its threads is using.
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
