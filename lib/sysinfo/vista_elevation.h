#pragma once

#include <windows.h>

namespace kelvo {

// How the process's token stands to elevation. Every answer is false on a Windows before NT 6.0 and
// when the token cannot be opened for TOKEN_QUERY or read.

// Whether the token is elevated now.
bool IsVistaProcessElevated();

// Gives the token's elevation type; leaves `type` alone when the answer is false.
bool GetVistaProcessElevationType(TOKEN_ELEVATION_TYPE& type);

// Whether the type is TokenElevationTypeDefault (no linked token), -Full (elevated) or -Limited.
bool IsVistaProcessElevationTypeDefault();
bool IsVistaProcessElevationTypeFull();
bool IsVistaProcessElevationTypeLimited();

}  // namespace kelvo
