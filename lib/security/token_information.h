#pragma once

#include <windows.h>

namespace kelvo {

// Returns one class of information about a token (GetTokenInformation): the structure of that class
// with all that it points to, in one block that the caller frees with LocalFree. Returns null, and
// traces why, when the token cannot be read or memory runs out. Null is also what classes of a
// fixed size give for which Windows answers the question for their size with another error than
// ERROR_INSUFFICIENT_BUFFER, such as TokenElevation: read these with GetTokenInformation itself.
// The token needs TOKEN_QUERY (TokenSource: TOKEN_QUERY_SOURCE).
void* GetFromToken(HANDLE token, TOKEN_INFORMATION_CLASS kind);

}  // namespace kelvo
