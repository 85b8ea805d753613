#pragma once

#include <windows.h>

namespace kelvo {

// These functions query the elevation of this process's token (GetTokenInformation). All of them
// return false on Windows before NT 6.0. They also return false when the token cannot be opened
// with TOKEN_QUERY access or cannot be read.

// Returns true when the token is elevated (TokenElevation).
bool IsVistaProcessElevated();

// Stores the token's elevation type (TokenElevationType) and returns true. On failure, returns
// false and leaves `type` unchanged.
bool GetVistaProcessElevationType(TOKEN_ELEVATION_TYPE& type);

// Returns true when the elevation type is TokenElevationTypeDefault: the token has no linked token.
bool IsVistaProcessElevationTypeDefault();

// Returns true when the elevation type is TokenElevationTypeFull: the token has a linked token and
// is the elevated one of the two.
bool IsVistaProcessElevationTypeFull();

// Returns true when the elevation type is TokenElevationTypeLimited: the token has a linked token
// and is not the elevated one of the two.
bool IsVistaProcessElevationTypeLimited();

}  // namespace kelvo
