#pragma once

#include <windows.h>

namespace kelvo {

// Returns one class of information about a token (GetTokenInformation). The structure and the data
// to which it points are in one block, which the caller frees with LocalFree. Returns null, and
// traces why, when the token cannot be read or memory runs out. Also returns null for some
// fixed-size classes, such as TokenElevation: their size query fails with an error other than
// ERROR_INSUFFICIENT_BUFFER. For these classes, call GetTokenInformation yourself. The token handle
// needs TOKEN_QUERY or, for TokenSource, TOKEN_QUERY_SOURCE.
void* GetFromToken(HANDLE token, TOKEN_INFORMATION_CLASS kind);

}  // namespace kelvo
