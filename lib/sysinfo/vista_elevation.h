#pragma once

#include <windows.h>

namespace kelvo {

// These functions query the elevation of this process's token (GetTokenInformation). All return
// false on Windows before NT 6.0, and when the token cannot be opened for TOKEN_QUERY or cannot be
// read.

// Returns true when the token is elevated (TokenElevation).
bool IsVistaProcessElevated();

// Stores the token's elevation type (TokenElevationType) and returns true. On failure, returns
// false and leaves `type` unchanged.
bool GetVistaProcessElevationType(TOKEN_ELEVATION_TYPE& type);

// Each function below returns true when the elevation type is the one in its name:
// TokenElevationTypeDefault (no linked token), TokenElevationTypeFull (the elevated one of two
// linked tokens) or TokenElevationTypeLimited (the other of the two).
bool IsVistaProcessElevationTypeDefault();
bool IsVistaProcessElevationTypeFull();
bool IsVistaProcessElevationTypeLimited();

}  // namespace kelvo
