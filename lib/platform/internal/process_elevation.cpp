#include "lib/platform/internal/process_elevation.h"

#include "lib/platform/owned.h"

namespace kelvo::internal {

namespace {

template <typename Information>
bool ReadProcessToken(TOKEN_INFORMATION_CLASS kind, Information& information) {
  OwnedKernelObject token;
  DWORD size = 0;
  return token.KeepIf(OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, token.Receive()) !=
                      FALSE) &&
         GetTokenInformation(token.get(), kind, &information, sizeof(information), &size) != FALSE;
}

}  // namespace

bool IsProcessElevated() {
  TOKEN_ELEVATION elevation{};
  return ReadProcessToken(TokenElevation, elevation) && elevation.TokenIsElevated != 0;
}

bool ReadProcessElevationType(TOKEN_ELEVATION_TYPE& type) {
  TOKEN_ELEVATION_TYPE read{};
  if (!ReadProcessToken(TokenElevationType, read)) {
    return false;
  }
  type = read;
  return true;
}

}  // namespace kelvo::internal
