#pragma once

#include <windows.h>

namespace kelvo::internal {

// True when the process's token is elevated (GetTokenInformation with TokenElevation); false when
// it is not and when that cannot be read, as on every Windows before NT 6.0.
bool IsProcessElevated();

// Gives the elevation type of the process's token (GetTokenInformation with TokenElevationType).
// False, and nothing given, when it cannot be read, as on every Windows before NT 6.0.
bool ReadProcessElevationType(TOKEN_ELEVATION_TYPE& type);

}  // namespace kelvo::internal
