#include "lib/process/internal/interactive_access.h"

#include "lib/process/interactive_desktop.h"
#include "lib/process/internal/window_objects.h"
#include "lib/security/internal/guarded_operation.h"
#include "lib/security/token_object_access.h"

namespace kelvo::internal {

namespace {

// In the messages that this file traces, "WinStat" and "hwinstaNew" mean the window station
// "WinSta0", and "hdeskNew" means its desktop "Default".

constexpr ACCESS_MASK kReadAndWriteDacl = READ_CONTROL | WRITE_DAC;

// Returns null when the station cannot be opened or assigned to the process.
HWINSTA SetInteractiveStation() {
  OwnedWindowStation station(OpenWindowStationW(kInteractiveStation, FALSE, kReadAndWriteDacl));
  if (!Check(station.get() != nullptr, L"RunAsUser Open WinStat With WRITE_DAC Failed")) {
    return nullptr;
  }
  if (!Check(SetProcessWindowStation(station.get()) != FALSE,
             L"RunAsUser SetProcessWindowStation to hwinstaNew Failed")) {
    return nullptr;
  }
  // This handle and the desktop's handle in MoveToInteractiveStation stay open by design.
  return station.release();
}

}  // namespace

bool MoveToInteractiveStation(HANDLE token) {
  const HWINSTA station = SetInteractiveStation();
  if (station == nullptr) {
    return false;
  }
  SetLastError(ERROR_SUCCESS);
  // The desktop is opened only to change its DACL. The thread stays on its current desktop.
  const HDESK desktop = OpenDesktopW(kInteractiveDesktop, 0, FALSE, kReadAndWriteDacl);
  if (!Check(desktop != nullptr, L"RunAsUser Open Desktop With WRITE_DAC Failed")) {
    return false;
  }
  if (!Check(AllowTokenFullAccessToObject(token, station, SE_WINDOW_OBJECT, L"WinStat") != FALSE,
             L"RunAsUser AllowTokenFullAccessToObject for Self Token on hwinstaNew Failed")) {
    return false;
  }
  return Check(AllowTokenFullAccessToObject(token, desktop, SE_WINDOW_OBJECT, L"Desktop") != FALSE,
               L"RunAsUser AllowTokenFullAccessToObject for Self Token on hdeskNew Failed");
}

}  // namespace kelvo::internal
