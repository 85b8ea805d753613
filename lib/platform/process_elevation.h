#pragma once

namespace kelvo {

// True when the process's token is elevated (GetTokenInformation with TokenElevation); false when
// it is not and when that cannot be read, as on every Windows before NT 6.0.
bool IsProcessElevated();

}  // namespace kelvo
