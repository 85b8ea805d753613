#pragma once

#include <windows.h>

namespace kelvo {

// How far the process's token is elevated (GetTokenInformation). Every operation returns false on a
// Windows before NT 6.0 and when the token cannot be opened for TOKEN_QUERY or read.

// Returns true when the token is elevated (TokenElevation).
bool IsVistaProcessElevated();

// Stores the token's elevation type (TokenElevationType) and returns true; leaves `type` alone when
// it returns false.
bool GetVistaProcessElevationType(TOKEN_ELEVATION_TYPE& type);

// Return true when the type is TokenElevationTypeDefault (the token has no linked one),
// TokenElevationTypeFull (it is the elevated one of two) or TokenElevationTypeLimited (the other).
bool IsVistaProcessElevationTypeDefault();
bool IsVistaProcessElevationTypeFull();
bool IsVistaProcessElevationTypeLimited();

}  // namespace kelvo
