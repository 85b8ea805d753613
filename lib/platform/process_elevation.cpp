#include "lib/platform/process_elevation.h"

#include <windows.h>

#include "lib/platform/owned.h"

namespace kelvo {

bool IsProcessElevated() {
  OwnedKernelObject token;
  if (OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, token.Receive()) == FALSE) {
    return false;
  }
  TOKEN_ELEVATION elevation{};
  DWORD size = 0;
  return GetTokenInformation(token.get(), TokenElevation, &elevation, sizeof(elevation), &size) !=
             FALSE &&
         elevation.TokenIsElevated != 0;
}

}  // namespace kelvo
