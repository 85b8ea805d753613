#include "lib/process/shutdown_privilege.h"

#include "lib/security/process_privilege.h"

namespace kelvo {

bool EnableShutdownPrivilege() {
  const PrivilegeOutcome outcome = EnablePrivilegeWithOutcome(L"SeShutdownPrivilege");
  return outcome.adjusted != FALSE && outcome.error == ERROR_SUCCESS;
}

}  // namespace kelvo
