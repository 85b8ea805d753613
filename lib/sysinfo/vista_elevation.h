#pragma once

#include <windows.h>

namespace kelvo {

// The elevation of this process's token (GetTokenInformation). Every function returns false before
// NT 6.0, and when the token cannot be opened for TOKEN_QUERY or read.

// Returns true when the token is elevated (TokenElevation).
bool IsVistaProcessElevated();

// Stores the token's elevation type (TokenElevationType) and returns true. Leaves `type` unchanged
// when it returns false.
bool GetVistaProcessElevationType(TOKEN_ELEVATION_TYPE& type);

// Return true when the type is TokenElevationTypeDefault (no linked token), TokenElevationTypeFull
// (the elevated one of two linked tokens) or TokenElevationTypeLimited (the other).
bool IsVistaProcessElevationTypeDefault();
bool IsVistaProcessElevationTypeFull();
bool IsVistaProcessElevationTypeLimited();

}  // namespace kelvo
