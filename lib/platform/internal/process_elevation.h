#pragma once

#include <windows.h>

namespace kelvo::internal {

// Returns true when the current process's token is elevated (GetTokenInformation with
// TokenElevation). Returns false when the token is not elevated or TokenElevation cannot be read.
// Windows before NT 6.0 has no TokenElevation, so the result there is always false.
bool IsProcessElevated();

// Stores the elevation type of the current process's token (GetTokenInformation with
// TokenElevationType) in `type` and returns true. When the elevation type cannot be read, as on
// every Windows before NT 6.0, returns false and leaves `type` unchanged.
bool ReadProcessElevationType(TOKEN_ELEVATION_TYPE& type);

}  // namespace kelvo::internal
