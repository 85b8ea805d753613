#include "status/system_status.h"

#include "lib/sysinfo/administrators.h"
#include "lib/sysinfo/system_version_string.h"
#include "lib/sysinfo/vista_elevation.h"

namespace kelvo {

Item DescribeSystem() {
  const bool isAdmin = IsAdmin();
  const bool isElevated = IsVistaProcessElevated();
  return {"system",
          State::kTold,
          GetSystemVersionString(),
          {{"administrator", isAdmin, isAdmin ? L"administrator" : L"not an administrator"},
           {"elevated", isElevated, isElevated ? L"elevated" : L"not elevated"}}};
}

}  // namespace kelvo
