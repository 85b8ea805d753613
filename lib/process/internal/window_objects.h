#pragma once

#include <windows.h>

#include "lib/platform/owned.h"

namespace kelvo::internal {

// Types that own the handles of window stations and desktops. They may even own a handle from
// GetProcessWindowStation or GetThreadDesktop: closing it does no harm, because Windows refuses to
// close a handle that the process or a thread is using.
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
