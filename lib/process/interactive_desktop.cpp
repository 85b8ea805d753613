#include "lib/process/interactive_desktop.h"

#include "lib/process/internal/window_objects.h"
#include "lib/security/internal/guarded_operation.h"
#include "lib/string/internal/ascii_case.h"

namespace kelvo {

namespace {

bool ReadName(HANDLE object, DesktopNames::Name& name) {
  DWORD needed = 0;
  if (GetUserObjectInformationW(object, UOI_NAME, name.data(), sizeof(name), &needed) != FALSE &&
      needed <= sizeof(name)) {
    return true;
  }
  name.fill(L'\0');
  return false;
}

}  // namespace

bool ReadDesktopNames(HWINSTA station, HDESK desktop, DesktopNames& names) {
  if (!internal::Check(ReadName(station, names.station),
                       L"RunAsUser GetUserObjectInformation On Current WinStat Failed")) {
    return false;
  }
  return internal::Check(ReadName(desktop, names.desktop),
                         L"RunAsUser GetUserObjectInformation On Current Desktop Failed");
}

BOOL IsOnInteractiveDesktop() {
  // Declared in this order so that CloseWindowStation is called before CloseDesktop.
  internal::OwnedDesktop desktop;
  internal::OwnedWindowStation station;
  DesktopNames names;
  GuardedCall([&] {
    station.reset(GetProcessWindowStation());
    desktop.reset(GetThreadDesktop(GetCurrentThreadId()));
    ReadDesktopNames(station.get(), desktop.get(), names);
  });
  return internal::EqualsIgnoringAsciiCase(names.station.data(), kInteractiveStation) &&
                 internal::EqualsIgnoringAsciiCase(names.desktop.data(), kInteractiveDesktop)
             ? TRUE
             : FALSE;
}

}  // namespace kelvo
