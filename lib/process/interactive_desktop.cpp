#include "lib/process/interactive_desktop.h"

#include <algorithm>
#include <string_view>

#include "lib/process/internal/window_objects.h"
#include "lib/security/internal/guarded_operation.h"

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

wchar_t FoldAscii(wchar_t unit) {
  return unit >= L'A' && unit <= L'Z' ? static_cast<wchar_t>(unit - L'A' + L'a') : unit;
}

bool EqualsIgnoringAsciiCase(std::wstring_view a, std::wstring_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](wchar_t x, wchar_t y) { return FoldAscii(x) == FoldAscii(y); });
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
  // Closed in the reverse of this order.
  internal::OwnedDesktop desktop;
  internal::OwnedWindowStation station;
  DesktopNames names;
  GuardedCall([&] {
    station.reset(GetProcessWindowStation());
    desktop.reset(GetThreadDesktop(GetCurrentThreadId()));
    ReadDesktopNames(station.get(), desktop.get(), names);
  });
  return EqualsIgnoringAsciiCase(names.station.data(), kInteractiveStation) &&
                 EqualsIgnoringAsciiCase(names.desktop.data(), kInteractiveDesktop)
             ? TRUE
             : FALSE;
}

}  // namespace kelvo
