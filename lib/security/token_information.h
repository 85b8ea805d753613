#pragma once

#include <windows.h>

namespace kelvo {

// Returns one class of information about a token (GetTokenInformation): its structure and all that
// this points to, in one block that the caller frees with LocalFree. Returns null, and traces why,
// when the token cannot be read or memory runs out. Also returns null for fixed-size classes whose
// size query fails with an error other than ERROR_INSUFFICIENT_BUFFER, such as TokenElevation: read
// these with GetTokenInformation itself. The token needs TOKEN_QUERY (TokenSource:
// TOKEN_QUERY_SOURCE).
void* GetFromToken(HANDLE token, TOKEN_INFORMATION_CLASS kind);

}  // namespace kelvo
