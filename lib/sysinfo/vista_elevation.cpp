#include "lib/sysinfo/vista_elevation.h"

#include "lib/platform/internal/process_elevation.h"
#include "lib/sysinfo/windows_release.h"

namespace kelvo {

namespace {

bool HasElevationType(TOKEN_ELEVATION_TYPE wanted) {
  TOKEN_ELEVATION_TYPE type{};
  return GetVistaProcessElevationType(type) && type == wanted;
}

}  // namespace

bool IsVistaProcessElevated() { return IsWinVista() && internal::IsProcessElevated(); }

bool GetVistaProcessElevationType(TOKEN_ELEVATION_TYPE& type) {
  return IsWinVista() && internal::ReadProcessElevationType(type);
}

bool IsVistaProcessElevationTypeDefault() { return HasElevationType(TokenElevationTypeDefault); }
bool IsVistaProcessElevationTypeFull() { return HasElevationType(TokenElevationTypeFull); }
bool IsVistaProcessElevationTypeLimited() { return HasElevationType(TokenElevationTypeLimited); }

}  // namespace kelvo
