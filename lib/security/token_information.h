#pragma once

#include <windows.h>

namespace kelvo {

// Returns one class of information about a token (GetTokenInformation): the structure of that class
// with all that it points to, in one block that the caller frees with LocalFree. Returns null, and
// traces why, when the token cannot be read or memory runs out. The token needs TOKEN_QUERY
// (TokenSource: TOKEN_QUERY_SOURCE).
void* GetFromToken(HANDLE token, TOKEN_INFORMATION_CLASS kind);

}  // namespace kelvo
