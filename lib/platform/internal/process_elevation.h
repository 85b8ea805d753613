#pragma once

#include <windows.h>

namespace kelvo::internal {

// Returns true when the process's token is elevated (GetTokenInformation with TokenElevation).
// Returns false when it is not or cannot be read, as on every Windows before NT 6.0.
bool IsProcessElevated();

// Stores the elevation type of the process's token (GetTokenInformation with TokenElevationType) in
// `type` and returns true. Returns false and leaves `type` unchanged when it cannot be read, as on
// every Windows before NT 6.0.
bool ReadProcessElevationType(TOKEN_ELEVATION_TYPE& type);

}  // namespace kelvo::internal
